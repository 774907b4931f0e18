#include "insertion/character_names.h"

#include <utility>

namespace orvane {

namespace {

/// The names of the characters from 160 to 255, with a blank behind each.
constexpr std::string_view latinNames =
    "nbsp iexcl cent pound curren yen brvbar sect uml copy ordf laquo not shy reg macr deg plusmn "
    "sup2 sup3 acute micro para middot cedil sup1 ordm raquo frac14 frac12 frac34 iquest Agrave "
    "Aacute Acirc Atilde Auml Aring AElig Ccedil Egrave Eacute Ecirc Euml Igrave Iacute Icirc Iuml "
    "ETH Ntilde Ograve Oacute Ocirc Otilde Ouml times Oslash Ugrave Uacute Ucirc Uuml Yacute THORN "
    "szlig agrave aacute acirc atilde auml aring aelig ccedil egrave eacute ecirc euml igrave "
    "iacute icirc iuml eth ntilde ograve oacute ocirc otilde ouml divide oslash ugrave uacute "
    "ucirc uuml yacute thorn yuml ";

constexpr std::pair<std::string_view, char16_t> otherNames[] = {
    {"amp", u'&'},         {"quot", u'"'},        {"lt", u'<'},          {"gt", u'>'},
    {"apos", u'\''},       {"bull", u'\x2022'},   {"dagger", u'\x2020'}, {"euro", u'\x20AC'},
    {"hellip", u'\x2026'}, {"ldquo", u'\x201C'},  {"lsquo", u'\x2018'},  {"mdash", u'\x2014'},
    {"minus", u'\x2212'},  {"ndash", u'\x2013'},  {"OElig", u'\x0152'},  {"oelig", u'\x0153'},
    {"rdquo", u'\x201D'},  {"rsquo", u'\x2019'},  {"sbquo", u'\x201A'},  {"bdquo", u'\x201E'},
    {"Scaron", u'\x0160'}, {"scaron", u'\x0161'}, {"trade", u'\x2122'},  {"larr", u'\x2190'},
    {"rarr", u'\x2192'},   {"hearts", u'\x2665'},
};

} // namespace

char16_t CharacterNamed(std::string_view name)
{
    for (const auto& [word, character] : otherNames)
        if (name == word)
            return character;
    char16_t character = 160;
    std::string_view rest = latinNames;
    for (std::size_t end = rest.find(' '); end != std::string_view::npos; end = rest.find(' ')) {
        if (rest.substr(0, end) == name)
            return character;
        rest.remove_prefix(end + 1);
        ++character;
    }
    return 0;
}

} // namespace orvane
