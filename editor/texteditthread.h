#pragma once

#include "documentconversion.h"
#include "lctrlsexexport.h"

#include <QPointer>
#include <QSize>
#include <QString>
#include <QThread>

#include <atomic>
#include <optional>

/** What a TextEditThread does; the values are fixed. */
enum TextOperatType : int {
    ColorFlip = 0,      ///< Turns the text's colours into their complements.
    BlackWhiteFlip = 1, ///< Swaps black and white text.
    DocAntialias = 2,   ///< Switches antialiasing off, and measures.
};

/**
 * Converts a whole document in a thread of its own.
 *
 * Set the type, the text or the document, and whether only to measure, then call ThreadStart();
 * read the result after finished(). No setter or result is to be called while the thread runs, only
 * IsQuit() and ThreadQuit(). Deleting the object stops the thread and waits for it. For one
 * conversion at a time; another may be started when it is finished.
 */
class LCTRLSEX_EXPORT TextEditThread : public QThread
{
    Q_OBJECT

public:
    explicit TextEditThread(QObject *parent = nullptr);
    ~TextEditThread() override;

    /** Sets what to do; a value that is none of the three does nothing. The name is kept so. */
    void SetTpye(TextOperatType type);
    /** Sets the HTML that the two colour operations read. */
    void SetText(QString &text);
    /**
     * Sets the document that DocAntialias works on, and that a colour operation without a text
     * takes its HTML from; the thread does not own it. From ThreadStart() to finished() nobody else
     * may read, change, draw or delete it: hand over a copy of a document that is shown. Without
     * one, or when it was deleted before the start, nothing happens.
     */
    void SetDocument(QTextDocument *document);
    /** Makes DocAntialias measure only and change nothing. */
    void setMeasureOnly(bool measureOnly);

    /** The HTML with its colours changed; the one that was set when the thread was stopped. */
    [[nodiscard]] QString GetText() const;
    /** What a colour operation did; none when it was stopped or the text was refused. */
    [[nodiscard]] std::optional<lctrlsex::ConvertedColors> converted() const;
    /**
     * What DocAntialias measured, in pixels: the width of all text as if it stood on one line, and
     * the height of its largest font. 0 x 0 at first.
     */
    [[nodiscard]] QSize GetSize() const;
    /** Whether it was asked to stop; true also before the first start. Any thread may ask. */
    [[nodiscard]] bool IsQuit() const;

    /** Starts, and forgets an earlier request to stop. */
    void ThreadStart();

public slots:
    /**
     * Asks the thread to stop and returns at once. A colour operation stops at the next fragment of
     * text and leaves the text as it was; DocAntialias runs to its end.
     */
    void ThreadQuit();

signals:
    /** How far a colour operation is, from 0 to 100; sent on the worker's thread. */
    void emitProcessValue(int value);

protected:
    void run() override;

private:
    Q_DISABLE_COPY(TextEditThread)

    void takeOver() const;
    void convertText(lctrlsex::ColorConversion conversion);
    void OnColorFlip();
    void OnBlackWhiteFlip();
    void OnDocAntialias();

    // What one thread writes before it sets a flag is seen by the other that reads the flag: ours
    // pass everything on by these two and do not rely on what start() and wait() do besides.
    std::atomic<bool> m_quit{true};
    std::atomic<bool> m_isDone{true};
    QString m_text;
    std::optional<lctrlsex::ConvertedColors> m_converted;
    TextOperatType m_type = ColorFlip;
    bool m_measureOnly = false;
    QSize m_size{0, 0};
    QPointer<QTextDocument> m_document;
};
