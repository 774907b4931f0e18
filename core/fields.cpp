#include "core/fields.h"

#include "core/numbers.h"

#include <algorithm>

namespace orvane {

namespace {

constexpr TextView yes = u"yes";
constexpr TextView no = u"no";

} // namespace

FieldTexts TextsOf(const Text& value)
{
    return {value};
}

FieldTexts TextsOf(bool value)
{
    return {Text(value ? yes : no)};
}

FieldTexts TextsOf(int value)
{
    return {NumberToText(value)};
}

FieldTexts TextsOf(const std::vector<Text>& value)
{
    return value;
}

FieldTexts TextsOf(const RequiredFiles& value)
{
    FieldTexts texts;
    for (std::size_t slot = 0; slot < value.RequiredFileNames.size(); ++slot)
        if (!value.RequiredFileNames[slot].empty() || !value.RequiredFileSources[slot].empty())
            texts.insert(texts.end(),
                         {NumberToText(static_cast<int>(slot)), value.RequiredFileNames[slot],
                          value.RequiredFileSources[slot]});
    return texts;
}

void SetField(Text& value, const FieldTexts& texts)
{
    if (!texts.empty())
        value = texts.front();
}

void SetField(bool& value, const FieldTexts& texts)
{
    if (texts == FieldTexts{Text(yes)})
        value = true;
    else if (texts == FieldTexts{Text(no)})
        value = false;
}

void SetField(int& value, const FieldTexts& texts)
{
    if (texts.empty())
        return;
    const auto number = ToInteger16(texts.front());
    if (FaultIn(number) == nullptr)
        value = ValueIn(number);
}

void SetField(std::vector<Text>& value, const FieldTexts& texts)
{
    value = texts;
}

void SetField(RequiredFiles& value, const FieldTexts& texts)
{
    value = {};
    for (std::size_t i = 0; i + 2 < texts.size(); i += 3) {
        const double number = Val(texts[i]);
        if (number < 0 || number >= static_cast<double>(value.RequiredFileNames.size()))
            continue;
        const auto slot = static_cast<std::size_t>(number);
        value.RequiredFileNames[slot] = texts[i + 1];
        value.RequiredFileSources[slot] = texts[i + 2];
        if (!texts[i + 1].empty())
            value.RequiredFileCount =
                std::max(value.RequiredFileCount, static_cast<std::int16_t>(slot + 1));
    }
}

} // namespace orvane
