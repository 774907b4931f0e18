#pragma once

#include "core/effect_kind.h"
#include "tests/support/test_folder.h"

#include <array>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace orvane::testing {

/// An effect that sessions work with.
struct SessionEffect
{
    EffectKind Kind;
    std::vector<const char*> Fields; ///< the first takes words, the others take numbers
    std::string_view Call = {};      ///< in the BODY tag; empty for none

    std::string Name() const;  ///< in its comments
    std::string Title() const; ///< in lists
};

/// One of each family: a script with a call, a script in the body, an applet, blocks.
extern const std::array<SessionEffect, 5> sessionEffects;

/// What a step of the program may do to a page.
struct SessionStep
{
    bool MayWrite = false;     ///< the author pressed something
    bool BringsBack = false;   ///< it may bring back a backup
    bool SavesNewPage = false; ///< it may make a page anew
    bool IsTroubled = false;   ///< trouble struck during it
    bool IsOvertaken = false;  ///< others saved the page in the moment in which it was written
    bool IsKilled = false;     ///< the program died in it
    std::string Name = {};     ///< of the effect that was made last, in its comments
    std::string Words = {};    ///< that this effect's code holds
};

/// The pages of a session, as they should be. A look fails the test where one is not so.
class SessionPages
{
public:
    /// Writes the first page, one of several by its number.
    SessionPages(const TestFolder& home, std::size_t page);

    /// Looks at the disk after a step of the program; gives whether a page was written.
    bool Look(const SessionStep& step);

    /// Another program adds a paragraph to the page of that name, if there is one.
    void SaveByOthers(const std::string& name);

    /// Compares the titles that the program lists with what stands in the page of that path.
    void CompareList(const std::string& path, const std::vector<std::string>& titles) const;

private:
    struct Version
    {
        std::string Bytes;
        std::string Authors; ///< what its author wrote
    };
    using Versions = std::vector<Version>;

    void LookAt(const std::string& name, Versions& versions, const std::string& bytes,
                const SessionStep& step) const;
    bool IsKept(const std::string& name, const std::string& bytes) const;
    bool IsLeftOver(const std::string& bytes) const;
    void LookForLitter() const;

    const TestFolder& m_home;
    std::map<std::string, Versions> m_pages; ///< by name, the newest version last
    int m_saves = 0;
    bool m_mayLitter = false; ///< trouble struck since a page was written
};

} // namespace orvane::testing
