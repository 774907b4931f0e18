#include "core/catalogue_search.h"

#include <algorithm>
#include <array>

namespace orvane {

namespace {

bool IsOfWord(char16_t character)
{
    return character > 127 || (character >= u'0' && character <= u'9') ||
           (ToLower(character) >= u'a' && ToLower(character) <= u'z');
}

std::vector<TextView> WordsOf(TextView text)
{
    std::vector<TextView> words;
    for (auto from = text.begin(); from != text.end();) {
        from = std::find_if(from, text.end(), IsOfWord);
        const auto behind = std::find_if_not(from, text.end(), IsOfWord);
        if (from != behind)
            words.emplace_back(from, behind);
        from = behind;
    }
    return words;
}

/// How well an effect answers: behind how many of its texts each typed word has been met; one more
/// than there are when one never is.
std::size_t Rank(const CatalogueRow& row, std::vector<TextView> typed)
{
    const std::array texts = {row.Title, row.OtherWords, row.Description};
    std::size_t rank = 0;
    for (; rank < texts.size() && !typed.empty(); ++rank)
        for (const TextView word : WordsOf(texts[rank]))
            std::erase_if(typed,
                          [&](TextView start) { return StartsWithIgnoringCase(word, start); });
    return typed.empty() ? rank : texts.size() + 1;
}

} // namespace

std::vector<const CatalogueRow*> SearchCatalogue(TextView typed)
{
    std::array<std::vector<const CatalogueRow*>, 5> byRank;
    const std::vector<TextView> words = WordsOf(typed);
    for (const CatalogueRow& row : Catalogue())
        if (row.HasButton)
            byRank[Rank(row, words)].push_back(&row);
    std::vector<const CatalogueRow*> found;
    for (const std::size_t rank : {1, 2, 3})
        found.insert(found.end(), byRank[rank].begin(), byRank[rank].end());
    return found;
}

} // namespace orvane
