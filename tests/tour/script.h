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

/// A text or file that a tour is expected to make. For a text: the file of tests/expected that
/// holds it, and the key of its row where that file is a table. For a file: see Tour::Files.
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
    std::vector<Expectation> Texts; ///< what the pages hold
    /// The files beside the pages: Key is the file's name, File the one of tests/expected with its
    /// bytes, or empty when any bytes will do.
    std::vector<Expectation> Files;
    std::vector<QString> Says;     ///< the beginnings of what the author is told
    std::set<std::string> Missing; ///< files that the pages name though they are not beside them

    /// Whether the tour leads to the delivery of an effect.
    bool EndsInPages() const;
};

/// Prints the tour's name in the names of tests.
inline void PrintTo(const Tour& tour, std::ostream* stream)
{
    *stream << tour.Name;
}

/// The tours of tours.txt, in its order, without the two ways of delivery.
const std::vector<Tour>& Tours();

/// The way of delivery into a "new" or an "existing" page. Expects one of these words.
const Tour& DeliveryOf(const std::string& kind);

} // namespace orvane::testing
