#pragma once

#include <QLineEdit>

namespace orvane {

/// The box in which the author types what to look for; its keys also lead out of it.
class CatalogueSearchBox : public QLineEdit
{
    Q_OBJECT

public:
    CatalogueSearchBox();

    /// Takes the focus and the letter or digit of a key that was pressed elsewhere; false for any
    /// other key.
    bool BeginWith(const QKeyEvent& key);

signals:
    void FirstWanted(); ///< Return: open what was found first
    void ListWanted();  ///< Down: into the list
    void Left();        ///< Escape: back to where the focus was

protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void SetHintColor();
};

} // namespace orvane
