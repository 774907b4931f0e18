#include "tests/tour/script.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QRegularExpression>

#include <algorithm>

namespace orvane::testing {

namespace {

void Read(Tour& tour, const QString& line)
{
    static const QRegularExpression form(QStringLiteral("^(\\S+)(?: ([=<>]))?(?: (.*))?$"));
    const auto parts = form.match(line);
    QString value = parts.captured(3);
    const std::string name = parts.captured(1).toStdString();
    const std::string file = value.section(u' ', 0, 0).toStdString();
    const std::string rest = value.section(u' ', 1).toStdString();
    if (name == "@expect")
        tour.Texts.push_back({file, rest});
    else if (name == "@file")
        tour.Files.push_back({rest, file});
    else if (name == "@says")
        tour.Says.push_back(value);
    else if (name == "@missing")
        tour.Missing.insert(file);
    else
        tour.Steps.push_back({name,
                              parts.captured(2).isEmpty() ? ' ' : parts.captured(2)[0].toLatin1(),
                              value.replace(QStringLiteral("\\n"), QStringLiteral("\r\n"))});
}

std::vector<Tour> ReadTours()
{
    QFile file(QStringLiteral(ORVANE_TOUR_SOURCES "/tours.txt"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    std::vector<Tour> tours;
    for (const QString& line : QString::fromUtf8(file.readAll()).split(u'\n'))
        if (line.startsWith(u'['))
            tours.push_back({.Name = line.mid(1, line.size() - 2).toStdString()});
        else if (!line.isEmpty() && !line.startsWith(u'#'))
            Read(tours.back(), line);
    return tours;
}

const std::vector<Tour>& AllTours()
{
    static const std::vector<Tour> tours = ReadTours();
    return tours;
}

} // namespace

bool Tour::EndsInPages() const
{
    return Steps.front().Name == "@open" && Steps.back().Name != "cmdCancel";
}

const std::vector<Tour>& Tours()
{
    static const std::vector<Tour> tours = [] {
        std::vector<Tour> own = AllTours();
        std::erase_if(own, [](const Tour& tour) { return tour.Name.starts_with("* "); });
        return own;
    }();
    return tours;
}

const Tour& DeliveryOf(const std::string& kind)
{
    return *std::ranges::find(AllTours(), "* " + kind, &Tour::Name);
}

} // namespace orvane::testing
