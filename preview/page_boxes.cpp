#include "preview/page_boxes.h"

namespace orvane {

void PageBoxes::StartPage()
{
    m_shownBefore = false;
    m_stopped = false;
}

PageBoxReply PageBoxes::Answer(PageBox box)
{
    if (m_stopped || m_open)
        return {};
    box.OffersStop = m_shownBefore;
    m_shownBefore = true;
    m_open = true;
    const PageBoxReply reply = m_dialogs.Answer(box);
    m_open = false;
    m_stopped = reply.Stop;
    return reply;
}

} // namespace orvane
