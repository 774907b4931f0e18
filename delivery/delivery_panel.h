#pragma once

#include "delivery/code_panel.h"
#include "delivery/finish_panel.h"
#include "delivery/publish_panel.h"

#include <array>

namespace orvane {

class EditorPanel;
class InsertPanel;
class MethodPanel;

/// The panels of all pages of the delivery wizard that come after the preview.
struct DeliveryPanels
{
    /// Makes the panels, each without a parent yet. Bench and what the job refers to must outlive
    /// the panels.
    DeliveryPanels(Workbench& bench, const CopyJob& job, MakeFolderWindow makeFolder,
                   PickedFileFinder pickedFile);

    /// All panels in the order of their indexes, which begin with 1: 0 is the preview.
    std::array<QWidget*, 9> InOrder() const;

    /// Sets the help link of the three pages with code to the help for the author's page editor.
    /// `isScripted` chooses the help for effects whose script needs more explanation.
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
