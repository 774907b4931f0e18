#pragma once

#include "core/workbench.h"

#include <QDialog>

#include <array>

class QRadioButton;
class QStackedWidget;

namespace orvane {

class MultiLineBox;
class PageBuilder;

/// The window into which the author pastes an applet tag to edit its effect again. It closes with
/// the effect whose wizard is to open.
class EditAppletForm : public QDialog
{
    Q_OBJECT

public:
    explicit EditAppletForm(Workbench& bench, QWidget* parent = nullptr);

    /// The effect whose wizard the author asked for; None when there is none to open.
    EffectKind Wanted() const { return m_wanted; }

private:
    PageBuilder AddPanel();
    void AddPastePanel();
    void AddChoicePanel();
    void Edit();
    void EditChosen();
    void Open(EffectKind kind);

    Workbench& m_bench;
    EffectKind m_wanted = EffectKind::None;
    QStackedWidget* m_panels;
    MultiLineBox* Text1 = nullptr;
    std::array<QRadioButton*, 3> m_choices{};
};

} // namespace orvane
