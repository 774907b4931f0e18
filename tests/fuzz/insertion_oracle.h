#pragma once

#include <cstddef>
#include <string>

namespace orvane::testing {

/// What is to be inserted into a page, with all texts as the page's bytes.
struct InsertionWork
{
    /// The part of the page that is changed.
    enum class Place
    {
        Head,
        Body,
        OnLoad,
        OnUnload,
    };
    Place Where = Place::Head;
    std::string Code;     ///< for the head or body, its markers included
    std::string Begin;    ///< the marker before the code
    std::string End;      ///< the marker after the code
    bool Searches = true; ///< whether an earlier copy is looked for, to be replaced
    std::string Func;     ///< for onLoad or onUnload: the name of the called function
    std::string Args;     ///< its arguments in parentheses
    bool Yes = true;      ///< the answer when the author is asked
};

/// The expected result of an insertion. A written page consists of the original before From, then
/// Put, then the original from To on, so that nothing outside of From to To can differ.
struct ExpectedInsertion
{
    /// How the insertion ends.
    enum class Ending
    {
        Written,     ///< the page is written
        Manual,      ///< nothing is written; the author has to insert the code by hand
        Overflow,    ///< a fault: a place in the page does not fit into 16 bits
        InvalidCall, ///< a fault: a part of the page would have a length below 0
    };
    Ending How = Ending::Written;
    std::size_t From = 0; ///< counted from 0
    std::size_t To = 0;   ///< counted from 0
    std::string Put;
    bool Asked = false; ///< whether the author is asked
};

/// The expected result, worked out without the program's code: on bytes and with signed numbers.
ExpectedInsertion ExpectInsertion(const std::string& page, const InsertionWork& work);

/// The page that must be written. Expects an Ending of Written.
std::string Spliced(const std::string& page, const ExpectedInsertion& expected);

} // namespace orvane::testing
