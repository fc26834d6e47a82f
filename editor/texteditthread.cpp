#include "texteditthread.h"

#include <QTextDocument>

using lctrlsex::ColorConversion;

TextEditThread::TextEditThread(QObject *parent)
    : QThread(parent)
{
    setObjectName(QStringLiteral("TextEditThread"));
}

TextEditThread::~TextEditThread()
{
    ThreadQuit();
    wait();
    takeOver();
}

/** Makes what the worker wrote known to this thread, once it is done. */
void TextEditThread::takeOver() const
{
    (void)m_isDone.load();
}

void TextEditThread::SetTpye(TextOperatType type)
{
    m_type = type;
}

void TextEditThread::SetText(QString &text)
{
    takeOver();
    m_text = text;
}

void TextEditThread::SetDocument(QTextDocument *document)
{
    m_document = document;
    if (document != nullptr) {
        (void)document->rootFrame(); // made on first use, which must be in the document's thread
    }
}

void TextEditThread::setMeasureOnly(bool measureOnly)
{
    m_measureOnly = measureOnly;
}

QString TextEditThread::GetText() const
{
    takeOver();
    return m_text;
}

std::optional<lctrlsex::ConvertedColors> TextEditThread::converted() const
{
    takeOver();
    return m_converted;
}

QSize TextEditThread::GetSize() const
{
    takeOver();
    return m_size;
}

bool TextEditThread::IsQuit() const
{
    return m_quit;
}

void TextEditThread::ThreadStart()
{
    takeOver();
    m_converted.reset();
    m_isDone = false;
    m_quit = false;
    start();
}

void TextEditThread::ThreadQuit()
{
    m_quit = true;
    quit();
}

void TextEditThread::run()
{
    (void)m_quit.load(); // what was set before the start
    switch (m_type) {
    case ColorFlip:
        OnColorFlip();
        break;
    case BlackWhiteFlip:
        OnBlackWhiteFlip();
        break;
    case DocAntialias:
        OnDocAntialias();
        break;
    }
    m_isDone = true;
}

void TextEditThread::convertText(ColorConversion conversion)
{
    const auto report = [this](int percent) {
        emit emitProcessValue(percent);
    };
    QTextDocument *document = m_document;
    const bool isDocument = m_text.isEmpty() && document != nullptr;
    const QString html = isDocument ? document->toHtml() : m_text;
    m_converted = lctrlsex::convertColors(html, conversion, m_quit, report);
    if (isDocument && m_converted && m_converted->text != document->toPlainText()) {
        // HTML leaves out an empty paragraph behind a table: no position below it would fit.
        m_converted = lctrlsex::convertColors(document, conversion, m_quit, report);
    }
    if (m_converted) {
        m_text = m_converted->html;
    }
}

void TextEditThread::OnColorFlip()
{
    convertText(ColorConversion::Flip);
}

void TextEditThread::OnBlackWhiteFlip()
{
    convertText(ColorConversion::BlackWhiteSwap);
}

void TextEditThread::OnDocAntialias()
{
    QTextDocument *document = m_document;
    if (document == nullptr) {
        return;
    }
    if (!m_measureOnly) {
        lctrlsex::removeAntialiasing(document);
    }
    m_size = lctrlsex::oneLineSize(*document);
}
