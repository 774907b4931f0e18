#include "windows/picture_box.h"

#include "windows/picture.h"
#include "windows/qt_text.h"

namespace orvane {

PictureBox::PictureBox(QSize room, QWidget* parent) : QLabel(parent), m_room(room)
{
    setObjectName(QStringLiteral("picPreview"));
    setAlignment(Qt::AlignCenter);
    setFrameShape(QFrame::StyledPanel);
    setMinimumSize(room + QSize(8, 8));
}

void PictureBox::Load(TextView path)
{
    clear();
    if (const auto picture = path.empty() ? std::nullopt : LoadPicture(ToQt(path), m_room))
        setPixmap(QPixmap::fromImage(picture->Thumbnail));
}

} // namespace orvane
