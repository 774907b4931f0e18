#pragma once

#include "core/text.h"

#include <QWidget>

#include <limits>
#include <vector>

namespace orvane {

/// Lets the author drop files on a widget or anything in it. Only files of this machine that all
/// fit the masks are taken; everything else is refused by the sign of the drag.
class FileDrop : public QObject
{
    Q_OBJECT

public:
    /// `masks` are such as "*.jpg;*.gif"; more files than `most` are refused. The widget owns what
    /// is made here.
    FileDrop(QWidget& target, TextView masks,
             std::size_t most = std::numeric_limits<std::size_t>::max());

signals:
    /// The full paths of the files, in the order in which they came.
    void Dropped(const std::vector<orvane::Text>& paths);

protected:
    bool eventFilter(QObject* target, QEvent* event) override;

private:
    const Text m_masks;
    const std::size_t m_most;
};

} // namespace orvane
