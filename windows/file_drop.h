#pragma once

#include "core/text.h"

#include <QWidget>

#include <limits>
#include <vector>

namespace orvane {

/// Lets the author drop files on a widget or anything in it. A drop is accepted only if all of it
/// are local files whose names fit the masks; otherwise the mouse pointer shows the refusal.
class FileDrop : public QObject
{
    Q_OBJECT

public:
    /// `masks` are such as "*.jpg;*.gif"; more than `most` files at once are refused. The widget
    /// owns the new object.
    FileDrop(QWidget& target, TextView masks,
             std::size_t most = std::numeric_limits<std::size_t>::max());

signals:
    /// Files were dropped: their full paths, in the order in which the drag listed them.
    void Dropped(const std::vector<orvane::Text>& paths);

protected:
    bool eventFilter(QObject* target, QEvent* event) override;

private:
    const Text m_masks;
    const std::size_t m_most;
};

} // namespace orvane
