#pragma once

#include "core/catalogue.h"
#include "core/workbench.h"

#include <QObject>

#include <memory>
#include <optional>

class QDialog;

namespace orvane {

class OVMainForm;
class WizardForm;
enum class DeliveryEnd;

/// Knows all windows, and is the road of one effect: wizard, delivery wizard, and back or out.
class FormDesk : public QObject
{
    Q_OBJECT

public:
    /// `pane` is the widget of the bench's preview pane; null when it has none.
    FormDesk(Workbench& bench, QWidget* pane);
    ~FormDesk() override;

    /// Shows the window that the program opens with.
    void Start();

    /// Whether the effect has a wizard.
    static bool IsBuilt(EffectKind kind);

    /// A fresh window of the effect, or null when it has no wizard.
    static std::unique_ptr<WizardForm> MakeWizard(EffectKind kind, Workbench& bench,
                                                  QWidget* parent = nullptr);

    /// The effects that can be re-edited, as a list of links for the help book.
    static Text ListEffectsOfTags();

    /// Leads the author through the effect's wizard and its delivery until both are closed.
    void OpenEffect(const EffectCommand& command);

    /// Leads the author through the animator's wizard, which opens with a project; a file that does
    /// not exist is told, and no wizard opens.
    void OpenProject(TextView path);

    /// Asks for a pasted applet tag and leads the author through its effect's wizard.
    void EditApplet();

    OVMainForm* MainForm() const { return m_mainForm.get(); }

signals:
    /// A wizard came up, so that a preview may soon be wanted.
    void WizardOpened();

private:
    void LeadThrough(WizardForm& wizard);
    void ShowModally(QDialog& window);
    DeliveryEnd ShowPreview(const EffectPayload& payload, WizardForm& wizard);
    void ShowOptions(QWidget* parent);
    std::optional<Text> ShowBringBack(TextView page, QWidget* parent);
    void ShowMainForm();

    Workbench& m_bench;
    QWidget* m_pane;
    std::unique_ptr<OVMainForm> m_mainForm;
    std::unique_ptr<QDialog> m_downloadForm;
};

} // namespace orvane
