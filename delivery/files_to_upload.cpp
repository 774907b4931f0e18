#include "delivery/files_to_upload.h"

#include "core/catalogue.h"
#include "insertion/page_script.h"

namespace orvane {

namespace {

void AddNonEmpty(std::vector<Text>& list, const auto& names)
{
    for (const auto& name : names)
        if (!name.empty())
            list.emplace_back(name);
}

} // namespace

std::vector<Text> FilesToUpload(const FinishedPayload& payload)
{
    std::vector<Text> list;
    if (!payload.Effect.IsBlock) {
        const CatalogueRow& row = RowOf(payload.Effect.Kind);
        AddNonEmpty(list, row.Uploads);
        if (row.UploadsSupportFiles)
            AddNonEmpty(list, payload.Effect.SupportFiles);
    }
    if (!payload.NeedsFiles)
        list.emplace_back(noRequiredFiles);
    if (payload.WantsPageScript) {
        std::erase(list, noRequiredFiles);
        list.emplace_back(pageScriptFile);
    }
    return list;
}

std::vector<Text> ListedFiles(const FinishedPayload& payload)
{
    std::vector<Text> list;
    if (payload.NeedsFiles)
        AddNonEmpty(list, payload.Effect.Required.RequiredFileNames);
    return list;
}

} // namespace orvane
