#include "core/file_names.h"
#include "insertion/auto_insert.h"
#include "tests/fuzz/fuzz_input.h"

#include <vector>

namespace orvane::testing {

namespace {

void CheckSplitting(TextView path)
{
    const std::size_t last = LastSeparator(path);
    const TextView name = GetFileName(path);
    Require(Join({FolderOf(path), name}) == path, "folder and name make up the path");
    Require(name.find(u'/') == TextView::npos, "a name holds no separator");
    Require(path.starts_with(u'/') || name.find(u'\\') == TextView::npos,
            "a name in a text of the author holds none of the other kind either");
    Require(FolderOf(path).size() == last, "a folder ends with its separator");
    if (last == 0)
        return;
    Require(PathIn(FolderOf(path), name) == path, "a folder keeps its own separator");
}

void CheckJoining(TextView folder, TextView path)
{
    const Text separated = WithSeparator(folder);
    Require(LastSeparator(separated) == separated.size(), "a separator ends the folder");
    Require(WithSeparator(separated) == separated, "there is one separator");
    const TextView name = GetFileName(path);
    if (!separated.starts_with(u'/') && name.find(u'\\') != TextView::npos)
        return; // two kinds of paths
    Require(GetFileName(PathIn(folder, name)) == name, "a name comes back from its path");
    Require(FolderOf(PathIn(folder, name)) == separated, "a folder comes back from its path");
}

/// Whether the name fits the mask, worked out place by place in a table.
bool Fits(TextView name, TextView mask)
{
    std::vector<bool> fits(name.size() + 1);
    fits[0] = true;
    for (const char16_t sign : mask) {
        std::vector<bool> next(name.size() + 1);
        for (std::size_t n = 0; n <= name.size(); ++n) {
            if (sign == u'*')
                next[n] = fits[n] || (n > 0 && next[n - 1]);
            else if (n > 0)
                next[n] = fits[n - 1] && (sign == u'?' || ToLower(sign) == ToLower(name[n - 1]));
        }
        fits = next;
    }
    return fits.back();
}

void CheckMasks(TextView name, TextView masks)
{
    bool fits = false;
    for (TextView rest = masks; !rest.empty();) {
        const TextView mask = rest.substr(0, rest.find(u';'));
        rest.remove_prefix(std::min(mask.size() + 1, rest.size()));
        fits = fits || Trim(mask) == u"*.*" || Fits(name, Trim(mask));
    }
    Require(MatchesMasks(name, masks) == fits, "a name fits one of the masks");
}

/// Wherever a page lies, its kept copy lies below the folder for the day.
void CheckKeptPage(TextView path)
{
    const Text page = PagePath(path, u"/home/jo");
    Require(page.starts_with(u'/'), "a page's path is full");
    const Text kept = BackupPathIn({.Folder = u"/state", .Day = u"day"}, page);
    Require(kept.starts_with(u"/state/day/"), "a backup lies below its day");
    Require(Find(Join({kept, u"/"}), u"/../") == 0, "a backup stays below its day");
}

void Check(FuzzInput input)
{
    const Text path = FromUtf8(input.TakeText().substr(0, 300));
    const Text second = FromUtf8(input.TakeRest().substr(0, 300));
    CheckSplitting(path);
    CheckJoining(second, path);
    CheckMasks(path, second);
    CheckKeptPage(path);
}

} // namespace

} // namespace orvane::testing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    orvane::testing::Check(orvane::testing::FuzzInput(bytes, size));
    return 0;
}
