#include "services/folder_memory.h"

namespace orvane {

namespace {

TextView KeyOf(FolderPurpose purpose)
{
    switch (purpose) {
    case FolderPurpose::Pages:
        return u"Pages";
    case FolderPurpose::Images:
        return u"Images";
    case FolderPurpose::Links:
        return u"Links";
    case FolderPurpose::Sounds:
        return u"Sounds";
    case FolderPurpose::Texts:
        return u"Texts";
    case FolderPurpose::Projects:
        return u"Projects";
    case FolderPurpose::Recipes:
        return u"Recipes";
    case FolderPurpose::Publishing:
        return u"Publishing";
    case FolderPurpose::Other:
        break;
    }
    return {};
}

} // namespace

Text RememberedFolder(const Settings& settings, FolderPurpose purpose)
{
    const TextView key = KeyOf(purpose);
    return key.empty() ? Text() : settings.Get(InSection(settingSections::folders, key));
}

void RememberFolder(Settings& settings, FolderPurpose purpose, TextView folder)
{
    const TextView name = KeyOf(purpose);
    const SettingKey key = InSection(settingSections::folders, name);
    if (!name.empty() && folder != settings.Get(key))
        settings.Put(key, folder);
}

} // namespace orvane
