#pragma once

#include "core/file_store.h"
#include "core/settings.h"

#include <map>
#include <string>
#include <string_view>
#include <utility>

namespace orvane {

/// The settings of one application: texts under section and key.
using SettingsTable = std::map<std::pair<Text, Text>, Text>;

/// The settings in the bytes of a file; lines that are no setting are ignored.
SettingsTable ReadSettings(std::string_view bytes);

/// The bytes of a settings file in UTF-8: "[section]" lines and "key=value" lines. "\r" and "\n"
/// stand for the line ends; a backslash, "=", "[" and "]" have a backslash in front.
std::string WriteSettings(const SettingsTable& settings);

/// Settings kept in one file per application, "«application».conf" in a folder. Each Get() sees
/// what another running program stored, since it reads the file anew unless that is still as it was
/// read last; where the folder can be locked, neither loses a setting when both store at the same
/// time.
class SettingsFile : public Settings
{
public:
    /// `folder` is created at the first Put(), for its owner alone.
    SettingsFile(FileStore& files, Text folder);

    Text Get(TextView section, TextView key, TextView otherwise,
             TextView application) const override;
    void Put(TextView section, TextView key, TextView value, TextView application) override;

private:
    /// What a file held when it was read last.
    struct Known
    {
        Text Path;
        FileFacts Facts;
        SettingsTable Settings;
    };

    Text PathOf(TextView application) const;
    const SettingsTable* Find(const Text& path) const;

    FileStore& m_files;
    Text m_folder;
    mutable Known m_known;
};

} // namespace orvane
