#include "documentsetup.h"
#include "edittoolbar.h"
#include "itemconversion.h"
#include "lrichviewedit.h"
#include "ltexteffectnode.h"
#include "nodecall.h"
#include "nodepublisher.h"
#include "noticestrip.h"
#include "pastedtext.h"
#include "textedit.h"

using lctrlsex::ItemConversion;
using lctrlsex::nodeCall;

// The whole text converted

bool TextEdit::CanConvertText() const
{
    return m_publisher->isLoaded() && !m_node.isNull() && !m_publisher->keepsStored() &&
           !m_view->isReadOnly() && !m_conversion->isRunning();
}

void TextEdit::ConvertText(int type)
{
    if (!CanConvertText() || type < ColorFlip || type > DocAntialias) {
        return;
    }
    m_notice->clear(lctrlsex::NoticeStrip::Refusal);
    if (type == DocAntialias && !nodeCall(m_node, &LTextEffectNode::GetTextAntialias)) {
        setAntialias(true);
        return;
    }
    m_toolBar->setEnabled(false);
    m_conversion->start(TextOperatType(type));
}

void TextEdit::conversionEnded(int type, int outcome)
{
    const int attachment = m_attachment;
    setUsable(true);
    if (outcome == ItemConversion::Refused) {
        const QString problem = lctrlsex::reopeningProblem(*m_view->document());
        showRefusal(tr("The text was not converted: %1").arg(problem));
    } else if (outcome == ItemConversion::Edited) {
        showRefusal(tr("The text was not converted because it was changed meanwhile. Try again."));
    } else if (outcome == ItemConversion::Done && type == DocAntialias) {
        setAntialias(false);
    }
    if (isAttached(attachment)) {
        CursorPositionFontStatusMarked();
    }
}

void TextEdit::setAntialias(bool on)
{
    const int attachment = m_attachment;
    nodeCall(m_node, &LTextEffectNode::SetTextAntialias, on);
    if (!isAttached(attachment)) {
        return;
    }
    lctrlsex::setAntialiasing(m_view->document(), on);
    UpdateBindKeys();
    if (isAttached(attachment)) {
        m_publisher->invalidateImages(); // no change of the document tells that its pages changed
        redraw();
    }
}
