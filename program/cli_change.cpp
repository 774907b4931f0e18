#include "core/catalogue.h"
#include "insertion/page_encoding.h"
#include "insertion/page_script.h"
#include "program/cli_commands.h"
#include "program/cli_delivery.h"
#include "program/cli_effect.h"
#include "program/cli_pages.h"
#include "reedit/effects_in_page.h"
#include "reedit/placing.h"
#include "reedit/remembered_fields.h"
#include "reedit/taking_out.h"

#include <algorithm>

namespace orvane {

namespace {

/// What a command works on in a page.
struct NamedEffect
{
    const CatalogueRow& Row;

    bool Is(const EffectInPage& effect) const
    {
        return EqualIgnoringCase(effect.Name, Row.MarkerName);
    }
};

/// The row of the effect that --effect names; null, and told, when there is
/// none.
const CatalogueRow* RowNamedIn(const CliRequest& request, const CliWorld& world)
{
    const Text name = request.Value("--effect").value_or(Text());
    const CatalogueRow* row = FindRowCalled(name);
    if (row == nullptr)
        Tell(world, {Join({u"--effect takes the name of an effect, and not \"", name, u"\""})});
    return row;
}

/// Why no command may touch the effect.
PageEnd Untouchable(const EffectInPage& effect)
{
    return {PageEnd::As::Failed, Join({u"\"", effect.Name,
                                       effect.State == EffectState::Half
                                           ? u"\" lacks one of its two comments"
                                           : u"\" and another effect stand inside each other"})};
}

PageEnd RemoveFrom(const CliWorld& world, const NamedEffect& named, const Text& path,
                   FileStore& files, CliDialogs& dialogs)
{
    const auto read = files.Read(path);
    if (const Fault* fault = FaultIn(read))
        return {PageEnd::As::Failed, Text(Words(*fault))};
    std::string page = ValueIn(read);
    const auto find = [&] {
        auto effects = EffectsIn(page);
        const auto found =
            std::ranges::find_if(effects, [&](const auto& effect) { return named.Is(effect); });
        return found == effects.end() ? std::nullopt : std::optional(std::move(*found));
    };
    while (const auto effect = find()) {
        if (!CanBeTouched(*effect))
            return Untouchable(*effect);
        page = Without(page, *effect);
    }
    if (page == ValueIn(read))
        return {PageEnd::As::Kept};
    return PutEdited(world, files, dialogs, path, ValueIn(read), page)
        .value_or(PageEnd{PageEnd::As::Written, u"taken out"});
}

/// The fields of an effect that stands in a page: those that were remembered,
/// else what its block shows. Nothing when they are not known.
std::optional<AnyEffect> EffectOf(const CliWorld& world, const FileStore& files,
                                  std::string_view page, const EffectInPage& found)
{
    if (const auto fields = FieldsOf(files, world.Folders.State, page, found)) {
        auto effect = AnyEffect::Fresh(fields->Kind);
        if (effect)
            effect->ReadDraft(fields->Draft);
        return effect;
    }
    for (const EffectKind kind : found.Kinds) {
        auto effect = AnyEffect::Fresh(kind);
        for (const EffectPart& part : found.Parts) {
            const std::string_view code = CodeIn(page, part.Span);
            const Text text =
                EncodingOf(page) == PageEncoding::Utf8 ? FromUtf8(code) : FromWindows1252(code);
            if (effect && effect->ReadBlock(text))
                return effect;
        }
    }
    return std::nullopt;
}

/// Changes the effects of one name in pages.
class Changing
{
public:
    Changing(const CliWorld& world, const CliRequest& request, const CatalogueRow& row)
        : m_world(world), m_request(request), m_named{row}
    {
    }

    PageEnd In(const Text& path, FileStore& files, CliDialogs& dialogs) const
    {
        const auto read = files.Read(path);
        if (const Fault* fault = FaultIn(read))
            return {PageEnd::As::Failed, Text(Words(*fault))};
        std::string page = ValueIn(read);
        std::vector<CliPayload> changed;
        for (std::size_t i = 0; i < EffectsIn(page).size(); ++i)
            if (const EffectInPage effect = EffectsIn(page)[i]; m_named.Is(effect))
                if (auto failed = Change(page, effect, files, changed))
                    return *failed;
        if (page == ValueIn(read))
            return {PageEnd::As::Kept};
        if (auto failed = PutEdited(m_world, files, dialogs, path, ValueIn(read), page))
            return *failed;
        PageEnd end;
        for (CliPayload& payload : changed)
            if (end.Is != PageEnd::As::Failed)
                end = CliDelivery(m_world, std::move(payload), {})
                          .Finish(path, files, dialogs, u"changed");
        return end;
    }

private:
    /// Puts the changed effect in the place of this one; else tells why not.
    std::optional<PageEnd> Change(std::string& page, const EffectInPage& found,
                                  const FileStore& files, std::vector<CliPayload>& changed) const
    {
        if (!CanBeTouched(found))
            return Untouchable(found);
        auto effect = EffectOf(m_world, files, page, found);
        if (!effect)
            return PageEnd{PageEnd::As::Failed,
                           u"the fields of the effect are not known: it was changed "
                           u"by hand, or put "
                           u"in elsewhere"};
        auto ready = Prepare(std::move(*effect), m_request, m_world);
        if (const auto* faults = std::get_if<CliFaults>(&ready))
            return PageEnd{PageEnd::As::Failed, Listed(*faults, u"  ")};
        CliPayload& payload = std::get<CliPayload>(ready);
        payload.Payload.WantsPageScript =
            HasPageScript(page) && !RunsByItself(payload.Payload.Effect);
        const PlacedPage placed = WithReplaced(page, found, payload.Payload);
        if (const auto* reason = std::get_if<NoPlace>(&placed))
            return PageEnd{PageEnd::As::Failed, Text(Words(*reason))};
        page = std::get<std::string>(placed);
        changed.push_back(std::move(payload));
        return std::nullopt;
    }

    const CliWorld& m_world;
    const CliRequest& m_request;
    NamedEffect m_named;
};

/// Runs over the pages; Failed as well when the effect was found in none.
CliExit RunOver(CliWorld& world, const CliRequest& request, const CatalogueRow& row,
                const PageRun::Work& work)
{
    PageRun run(world, request);
    const CliExit exit = run.Over(0, work);
    if (exit == CliExit::Success && run.Written() == 0)
        return Tell(world, {Join({u"nothing was to be done for \"", row.Title, u"\""})});
    return exit;
}

} // namespace

CliExit RemoveEffect(const CliRequest& request, CliWorld& world)
{
    const CatalogueRow* row = RowNamedIn(request, world);
    if (row == nullptr)
        return CliExit::WrongUse;
    return RunOver(world, request, *row,
                   [&](const Text& page, FileStore& files, CliDialogs& dialogs) {
                       return RemoveFrom(world, {*row}, page, files, dialogs);
                   });
}

CliExit ChangeEffect(const CliRequest& request, CliWorld& world)
{
    const CatalogueRow* row = RowNamedIn(request, world);
    if (row == nullptr)
        return CliExit::WrongUse;
    const Changing changing(world, request, *row);
    return RunOver(world, request, *row,
                   [&](const Text& page, FileStore& files, CliDialogs& dialogs) {
                       return changing.In(page, files, dialogs);
                   });
}

} // namespace orvane
