#pragma once

#include <QString>

#include <ostream>
#include <set>
#include <string>
#include <vector>

namespace orvane::testing {

/// One line of a tour: what the author does, or what is looked at.
struct Step
{
    std::string Name; ///< of a control, or of a command that begins with "@"
    char Sign = ' ';  ///< '=' fills in, '<' picks a file, '>' saves one, ' ' clicks
    QString Value;
};

/// A text that a tour's pages hold, by the row's key where the file is a table; or a file beside
/// them, by its own name.
struct Expectation
{
    std::string File;
    std::string Key;
};

/// A way through one wizard, or through some windows.
struct Tour
{
    std::string Name;
    std::vector<Step> Steps;
    std::vector<Expectation> Texts;
    std::vector<Expectation> Files; ///< the key is the name beside the page; the file may be empty
    std::vector<QString> Says;      ///< the beginnings of what the author is told
    std::set<std::string> Missing;  ///< files that the pages show and that nobody copies

    bool EndsInPages() const;
};

inline void PrintTo(const Tour& tour, std::ostream* stream)
{
    *stream << tour.Name;
}

/// The tours of tours.txt, in its order, and its two ways of delivery.
const std::vector<Tour>& Tours();
const Tour& DeliveryOf(const std::string& kind);

} // namespace orvane::testing
