#pragma once

#include "core/text.h"

#include <array>

namespace orvane {

inline constexpr std::array<TextView, 5> AppletFonts = {u"Arial", u"Courier", u"Dialog",
                                                        u"Helvetica", u"TimesRoman"};

inline constexpr std::array<TextView, 11> CycleCounts = {
    u"0 - Infinite", u"1 time",  u"2 times", u"3 times", u"4 times", u"5 times",
    u"6 times",      u"7 times", u"8 times", u"9 times", u"10 times"};

inline constexpr std::array<TextView, 18> FontSizes = {u"4",  u"6",  u"8",  u"9",  u"10", u"11",
                                                       u"12", u"14", u"16", u"18", u"20", u"22",
                                                       u"24", u"28", u"30", u"36", u"48", u"72"};

/// The fonts that the windows offer for the text of a page.
inline constexpr std::array<TextView, 10> pageFonts = {
    u"Arial",         u"Courier", u"Courier New", u"Terminal",        u"MS Serif",
    u"MS Sans Serif", u"Symbol",  u"Modern",      u"Times New Roman", u"Wingdings"};

/// The font styles that the windows offer for the text of a page.
inline constexpr std::array<TextView, 4> fontStyles = {u"Normal", u"Bold", u"Italic",
                                                       u"Bold Italic"};

inline constexpr std::array<TextView, 9> AppletAlignments = {
    u"Top",     u"Middle",    u"Bottom(Default)", u"Left",     u"Right",
    u"Texttop", u"Absmiddle", u"Baseline",        u"Absbottom"};

/// A name and its red, green and blue values, padded for a fixed-width list.
inline constexpr std::array<TextView, 8> BasicColors = {
    u"Black  -               0,0,0",     u"Blue  -                0,0,255",
    u"Red  -                 255,0,0",   u"Green  -               0,255,0",
    u"Cyan  -                0,255,255", u"Magenta  -             255,0,255",
    u"Yellow  -              255,255,0", u"White  -               255,255,255"};

inline constexpr std::array<TextView, 4> LinkTargets = {u"_blank", u"_parent", u"_self", u"_top"};

/// An entry's index is the transition's number in generated script.
inline constexpr std::array<TextView, 24> RevealTransitions = {u"Box in",
                                                               u"Box out",
                                                               u"Circle in",
                                                               u"Circle out",
                                                               u"Wipe up",
                                                               u"Wipe down",
                                                               u"Wipe right",
                                                               u"Wipe left",
                                                               u"Vertical blinds",
                                                               u"Horizontal blinds",
                                                               u"Checkerboard across",
                                                               u"Checkerboard down",
                                                               u"Random dissolve",
                                                               u"Split vertical in",
                                                               u"Split vertical out",
                                                               u"Split horizontal in",
                                                               u"Split horizontal out",
                                                               u"Strips left down",
                                                               u"Strips left up",
                                                               u"Strips right down",
                                                               u"Strips right up",
                                                               u"Random bars horizontal",
                                                               u"Random bars vertical",
                                                               u"Random"};

} // namespace orvane
