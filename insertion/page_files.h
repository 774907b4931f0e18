#pragma once

#include "core/file_store.h"
#include "insertion/page_encoding.h"

#include <optional>
#include <string_view>
#include <vector>

namespace orvane {

/// A file or folder that page code names relative to its page.
struct PageFile
{
    Text Name; ///< as it lies beside the page, such as "img/my cat.gif"
    bool IsThere = false;
    bool operator==(const PageFile&) const = default;
};

/// The name beside the page that an address leads to, without query and fragment. Nothing for one
/// that leads elsewhere: to another server, to the root of the server, into the page itself, or to
/// no file, as "mailto:" does.
std::optional<Text> NameBesidePage(TextView address);

/// The names beside the page that the code asks for, each once, in the order of the code: pictures,
/// sounds, pages, scripts, classes, and what an applet or a script is given by name. Names in
/// comments and in plain words do not count, nor those that a script puts together.
std::vector<Text> NamesInCode(std::string_view code, PageEncoding encoding);

/// Looks on the disk for each of the names. `folder` is the page's, with its final separator.
std::vector<PageFile> LookBesidePage(const FileStore& files, TextView folder,
                                     const std::vector<Text>& names);

} // namespace orvane
