#pragma once

#include "disk/system_calls.h"

#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace orvane::testing {

/// What a power cut takes from the disk: the content written since the last sync of its file, and
/// the names made, changed or removed since the last sync of their folder.
class Unsynced
{
public:
    Unsynced() = default;
    ~Unsynced();
    Unsynced(const Unsynced&) = delete;
    Unsynced& operator=(const Unsynced&) = delete;

    /// To be told of each call: before a writing one, after a successful other one.
    void Opened(int descriptor, const std::string& path);
    void BeforeWriting(int descriptor);
    void Synced(int descriptor);
    void Created(const std::string& path);
    void MadeFolder(const std::string& path);

    /// Before a name disappears or comes to mean another file; keep what it gives until the call
    /// has succeeded, then hand it on.
    using Undo = std::function<void()>;
    Undo BeforeRemoving(const std::string& path) const;
    void Removed(const std::string& path, Undo undo);
    void Renamed(const std::string& from, const std::string& to, Undo undo);

    /// Leaves of each unsynced content the first half of the new and the rest of the old one.
    void LoseContent();
    /// Counts all names as synced.
    void KeepNames();
    /// Takes all unsynced changes of names back.
    void LoseNames();

private:
    using Identity = std::pair<dev_t, ino_t>;
    struct Content
    {
        int Descriptor; ///< our own
        std::string Synced;
    };
    struct NameChange
    {
        Identity Folder;
        Undo TakeBack;
    };

    std::map<int, std::string> m_paths; ///< by descriptor
    std::map<Identity, Content> m_contents;
    std::vector<NameChange> m_names;
};

} // namespace orvane::testing
