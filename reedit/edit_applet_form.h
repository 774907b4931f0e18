#pragma once

#include "core/pasted_tag.h"
#include "core/workbench.h"

#include <QDialog>

#include <array>
#include <optional>

class QRadioButton;
class QStackedWidget;

namespace orvane {

class MultiLineBox;
class PageBuilder;

/// A pasted tag, and the effect whose wizard reads it.
struct PastedEffect
{
    EffectKind Kind;
    PastedTag Tag;
};

/// The window into which the author pastes an applet tag to edit its effect again. It closes with
/// the effect whose wizard is to open.
class EditAppletForm : public QDialog
{
    Q_OBJECT

public:
    explicit EditAppletForm(Workbench& bench, QWidget* parent = nullptr);

    /// What the author wants to edit; nothing when there is no wizard to open.
    const std::optional<PastedEffect>& Wanted() const { return m_wanted; }

private:
    PageBuilder AddPanel();
    void AddPastePanel();
    void AddChoicePanel();
    void Edit();
    void EditChosen();
    void Open(EffectKind kind);

    Workbench& m_bench;
    PastedTag m_tag;
    std::optional<PastedEffect> m_wanted;
    QStackedWidget* m_panels;
    MultiLineBox* Text1 = nullptr;
    std::array<QRadioButton*, 3> m_choices{};
};

} // namespace orvane
