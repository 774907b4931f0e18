#pragma once

#include "core/workbench.h"

#include <QWidget>

#include <limits>
#include <vector>

namespace orvane {

/// Lets the author drop files on a widget or anything in it. A drop is accepted if local files are
/// among it whose names fit the masks; otherwise the mouse pointer shows the refusal. What else was
/// dropped with them is left out, and named to the author. Where several files may come, a folder
/// stands for the files in it that fit, in the order of their names.
class FileDrop : public QObject
{
    Q_OBJECT

public:
    /// `masks` are such as "*.jpg;*.gif"; more than `most` files at once are refused. The widget
    /// owns the new object; the bench must outlive it.
    FileDrop(QWidget& target, TextView masks, Workbench& bench,
             std::size_t most = std::numeric_limits<std::size_t>::max());

    /// What was dropped: the paths of the files that are wanted, and of folders of such, and the
    /// names of all else.
    struct Files
    {
        std::vector<Text> Paths;
        std::vector<Text> LeftOut;
    };

signals:
    /// Files were dropped: the full paths of those that fit, in the order in which the drag listed
    /// them.
    void Dropped(const std::vector<orvane::Text>& paths);

protected:
    bool eventFilter(QObject* target, QEvent* event) override;

private:
    void Take(const Files& files);

    const Text m_masks;
    Workbench& m_bench;
    const std::size_t m_most;
};

} // namespace orvane
