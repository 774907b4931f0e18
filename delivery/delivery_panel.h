#pragma once

#include "delivery/code_panel.h"
#include "delivery/publish_panel.h"

#include <array>

namespace orvane {

class EditorPanel;
class FinishPanel;
class InsertPanel;
class MethodPanel;

/// The delivery wizard's pages behind its preview, each without a parent yet.
struct DeliveryPanels
{
    DeliveryPanels(Workbench& bench, const CopyDesk& desk, MakeFolderWindow makeFolder);

    /// All of them in the order of their indexes, which begin with 1.
    std::array<QWidget*, 9> InOrder() const;

    /// Offers on the pages with code the help that fits the author's editor.
    void OfferEditorHelp(const Settings& settings, bool isScripted) const;

    EditorPanel* Editor;
    MethodPanel* Method;
    InsertPanel* Insert;
    std::array<CodePanel*, 3> Codes; ///< HEAD, BODY, BODY attribute
    PublishPanel* Publish;
    QWidget* Ftp; ///< no page shows it
    FinishPanel* Finish;
};

} // namespace orvane
