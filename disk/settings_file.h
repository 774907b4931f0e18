#pragma once

#include "core/file_store.h"
#include "core/settings.h"

#include <map>
#include <utility>

namespace orvane {

/// The settings of one application: texts under section and key.
using SettingsTable = std::map<std::pair<Text, Text>, Text>;

/// The settings in a file's bytes; what is no setting is passed over.
SettingsTable ReadSettings(std::string_view bytes);

/// The bytes of a settings file: UTF-8, "[section]" lines and "key=value" lines in which "\\", "\r"
/// and "\n" stand for a backslash and the line ends.
std::string WriteSettings(const SettingsTable& settings);

/// Settings kept in one file per application below a folder. Each read looks at the file afresh, so
/// that two running programs see what the other stored, and none loses it by storing at the same
/// time.
class SettingsFile : public Settings
{
public:
    /// `folder` is created at the first Put().
    SettingsFile(FileStore& files, Text folder);

    Text Get(TextView section, TextView key, TextView otherwise,
             TextView application) const override;
    void Put(TextView section, TextView key, TextView value, TextView application) override;

private:
    Text PathOf(TextView application) const;

    FileStore& m_files;
    Text m_folder;
};

} // namespace orvane
