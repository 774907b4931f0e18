#pragma once

#include "core/opening.h"
#include "core/payload.h"
#include "core/workbench.h"

#include <QObject>

#include <memory>
#include <optional>

class QDialog;

namespace orvane {

class AnyEffect;
class OVMainForm;
class PageEffectsRoad;
class WizardForm;
enum class DeliveryEnd;

/// Opens all windows of the program, and leads the author through an effect: its wizard, then the
/// delivery wizard, and from there back to the first or out.
class FormDesk : public QObject
{
    Q_OBJECT

public:
    /// `pane` is the widget of the bench's preview pane, or null. Both must outlive this object.
    FormDesk(Workbench& bench, QWidget* pane);
    ~FormDesk() override;

    /// Shows the window that the program opens with.
    void Start();

    /// The effects whose pasted tags can be edited, as an HTML list of links to their help topics.
    static Text ListEffectsOfTags();

    /// Leads the author through the effect's wizard and its delivery and returns when both are
    /// closed; does nothing for an effect without a wizard.
    void OpenEffect(EffectKind kind, Opening opening = FreshStart());

    /// The same with the wizard of a recipe, or with the animator's, which opens with the project
    /// file of this full path. When the recipe is wrong or the project does not exist, the author
    /// is told and no wizard opens.
    void OpenFile(const Text& path);

    /// The same with a recipe: that of this full path, or one that the author picks when it is
    /// empty.
    void OpenRecipeFile(const Text& path);

    /// Asks for a pasted applet tag and leads the author through its effect's wizard; none opens
    /// when the author cancels or the effect has no wizard.
    void EditApplet();

    /// Shows the effects on the page with this full path; with an empty path the author looks for a
    /// page first. Returns when the window is closed.
    void ShowPageEffects(TextView page);

    /// Shows every effect at work, and leads the author through the one that is chosen there.
    void ShowAllEffects();

    /// The main window; null before Start(), and when the program opens with another one.
    OVMainForm* MainForm() const { return m_mainForm.get(); }

signals:
    /// A wizard is about to be shown, so that a preview may soon be wanted.
    void WizardOpened();

private:
    /// Leads through one wizard; gives the effect of a recipe for another one that was opened in
    /// it.
    std::optional<AnyEffect> OpenWizard(EffectKind kind, Opening opening);
    void LeadThrough(WizardForm& wizard);
    void ShowModally(QDialog& window);
    /// How the delivery ended, and the page that goes with it.
    struct Delivery
    {
        DeliveryEnd End;
        Text Page;
    };
    Delivery ShowPreview(const EffectPayload& payload, WizardForm& wizard);
    PageEffectsRoad MakePageRoad();
    void ShowOptions(QWidget* parent);
    std::optional<Text> ShowBringBack(TextView page, QWidget* parent);
    void ShowMainForm();

    Workbench& m_bench;
    QWidget* m_pane;
    std::unique_ptr<OVMainForm> m_mainForm;
    std::unique_ptr<QDialog> m_downloadForm;
};

} // namespace orvane
