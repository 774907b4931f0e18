#pragma once

#include <cstddef>
#include <string>

namespace orvane::testing {

/// One insertion into a page, all texts as the page's bytes.
struct InsertionWork
{
    enum class Place
    {
        Head,
        Body,
        OnLoad,
        OnUnload,
    };
    Place Where = Place::Head;
    std::string Code; ///< for the head or body, its markers included
    std::string Begin;
    std::string End;
    bool Searches = true; ///< a body is searched for an earlier copy
    std::string Func;     ///< for an attribute
    std::string Args;
    bool Yes = true; ///< the answer when the author is asked
};

/// What that insertion must come to. A written page is the original up to From, Put, and the
/// original from To on, so that nothing outside of the cut can differ.
struct ExpectedInsertion
{
    enum class Ending
    {
        Written,
        Manual,
        Overflow,
        InvalidCall,
    };
    Ending How = Ending::Written;
    std::size_t From = 0; ///< both counted from 0
    std::size_t To = 0;
    std::string Put;
    bool Asked = false;
};

/// Works the insertion out anew, on bytes and with signed numbers.
ExpectedInsertion ExpectInsertion(const std::string& page, const InsertionWork& work);

/// The written page of an expectation.
std::string Spliced(const std::string& page, const ExpectedInsertion& expected);

} // namespace orvane::testing
