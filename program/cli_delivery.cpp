#include "program/cli_delivery.h"

#include "core/file_names.h"
#include "insertion/page_script_lines.h"
#include "insertion/page_writing.h"
#include "reedit/remembered_fields.h"
#include "services/made_files.h"
#include "services/recorded_files.h"

#include <utility>

namespace orvane {

namespace {

/// Takes the files off the list that lie in the folder as they are, so that nobody is asked whether
/// they may be overwritten.
void LeaveOutSame(RequiredFiles& required, const FileStore& files, TextView folder)
{
    for (std::size_t i = 0; i < required.RequiredFileNames.size(); ++i) {
        Text& name = required.RequiredFileNames[i];
        Text& source = required.RequiredFileSources[i];
        const Text copy = Join({folder, name});
        if (name.empty() || source.empty() || !files.FileExists(copy))
            continue;
        const auto bytes = files.Read(source);
        if (!FaultIn(bytes) && files.Read(copy) == bytes) {
            name.clear();
            source.clear();
        }
    }
}

} // namespace

BackupsPlace BackupsOf(const CliWorld& world)
{
    return BackupsPlaceIn(world.Folders.State, world.Today);
}

std::optional<PageEnd> PutEdited(const CliWorld& world, FileStore& files, CliDialogs& dialogs,
                                 const Text& page, std::string_view shown, std::string_view edited)
{
    if (PutPage(files, dialogs, page, BackupsOf(world), shown, edited))
        return std::nullopt;
    return PageEnd{PageEnd::As::Failed, Listed(dialogs.TakeSaid(), u"  ")};
}

PageEnd CliDelivery::Finish(const Text& page, FileStore& files, CliDialogs& dialogs, TextView words)
{
    // What was said of the page itself.
    const std::vector<Text> said = dialogs.TakeSaid();
    if (!std::exchange(m_isRemembered, true))
        RememberFields(files, m_world.Folders.State, m_ready.Payload, m_ready.Draft);
    const Text folder(FolderOf(page));
    if (!m_servedFolders.contains(folder)) {
        const auto copied = CopyTo(folder, files, dialogs);
        if (const Fault* fault = FaultIn(copied))
            return {PageEnd::As::Failed,
                    Join({words, u", but its files are not beside it: ", Words(*fault)})};
        if (!ValueIn(copied).empty())
            return {PageEnd::As::Failed, Join({words, u", but these files are missing beside it: ",
                                               Listed(ValueIn(copied))})};
        if (!dialogs.Unanswered())
            m_servedFolders.insert(folder);
    }
    if (!said.empty())
        return {PageEnd::As::Failed, Listed(said, u"  ")};
    return {PageEnd::As::Written, Text(words)};
}

Outcome<MissingFiles> CliDelivery::CopyTo(TextView folder, FileStore& files, CliDialogs& dialogs)
{
    FinishedPayload payload = m_ready.Payload;
    TakeSourcesFrom(payload.Effect.Required, files, m_sources.empty() ? folder : m_sources);
    LeaveOutSame(payload.Effect.Required, files, folder);
    const Done brought = BringOwnFiles(files, payload.Effect);
    if (const Fault* fault = FaultIn(brought))
        return *fault;
    DeliveryReport report;
    auto copied =
        CopyRequiredFiles({payload, m_world.Folders.Program, files, dialogs, report}, folder);
    RemoveSecretFiles(files, m_world.Folders.Program, payload.Effect);
    // It speaks of what a window shows; what is missing is told in our own words.
    dialogs.TakeSaid();
    return copied;
}

Done CliDelivery::BringOwnFiles(FileStore& files, const EffectPayload& effect) const
{
    const Text& program = m_world.Folders.Program;
    std::vector<Text> names(effect.SupportFiles.begin(), effect.SupportFiles.end());
    if (m_ready.Payload.WantsPageScript)
        names.emplace_back(pageScriptFile);
    std::erase(names, Text());
    if (names.empty())
        return {};
    // Passwords lie there as well.
    Done done = MakeFolders(files, program, Access::OwnerAlone);
    for (const Text& name : names)
        if (const auto bytes = m_world.OwnFile(name); bytes && !FaultIn(done))
            done = InstallFile(files, PathIn(program, name), *bytes);
    return FaultIn(done) ? done : WriteMadeFiles(files, program, effect);
}

} // namespace orvane
