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

    /// These tell it of each call: before a call that writes, after any other that succeeded.
    void Opened(int descriptor, const std::string& path);
    void BeforeWriting(int descriptor);
    void Synced(int descriptor);
    void Created(const std::string& path);
    void MadeFolder(const std::string& path);

    /// Takes back what a call did to a name.
    using Undo = std::function<void()>;

    /// Called before a name is removed or renamed over; pass the result to Removed() or Renamed()
    /// when the call has succeeded. An exchange of names, which removes none, has no undo.
    Undo BeforeRemoving(const std::string& path) const;
    void Removed(const std::string& path, Undo undo);
    void Renamed(const std::string& from, const std::string& to, Undo undo);

    /// Makes each unsynced content the first half of the new bytes and the rest of the old ones.
    void LoseContent();
    /// Counts all changes of names as synced.
    void KeepNames();
    /// Takes all unsynced changes of names back.
    void LoseNames();

private:
    using Identity = std::pair<dev_t, ino_t>;
    struct Content
    {
        int Descriptor;     ///< our own
        std::string Synced; ///< the bytes at the last sync
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
