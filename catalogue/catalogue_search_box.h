#pragma once

#include <QLineEdit>

namespace orvane {

/// The box in which the author types what to look for; Enter, Down and Escape are signalled to its
/// owner.
class CatalogueSearchBox : public QLineEdit
{
    Q_OBJECT

public:
    CatalogueSearchBox();

    /// Takes the focus and the letter or digit of a key that was pressed elsewhere; false for any
    /// other key.
    bool BeginWith(const QKeyEvent& key);

signals:
    void FirstWanted(); ///< Enter: open the first effect found
    void ListWanted();  ///< Down: go into the list of effects
    void Left();        ///< Escape: go back to where the focus was

protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void SetHintColor();
};

} // namespace orvane
