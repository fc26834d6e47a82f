#pragma once

#include <QTranslator>

/**
 * A language that no one speaks: every text that asks for a translation comes in brackets, with
 * accents and 40 % longer, and keeps its place markers and its mnemonic.
 */
class PseudoLocale : public QTranslator
{
public:
    [[nodiscard]] bool isEmpty() const override { return false; }

    [[nodiscard]] QString translate(const char *context, const char *source,
                                    const char * /*disambiguation*/, int /*n*/) const override
    {
        // Names of keys are read back by the toolkit, and the direction of writing is no text.
        const bool isText =
            qstrcmp(context, "QShortcut") != 0 && qstrcmp(source, "QT_LAYOUT_DIRECTION") != 0;
        return isText ? drawnOut(QString::fromUtf8(source)) : QString();
    }

private:
    static QString drawnOut(const QString &source)
    {
        static const QString plain = QStringLiteral("AEIOUaeiounNcC");
        static const QString accented = QStringLiteral("ÁÈÎÖÚáèîöúñÑçÇ");
        // The patterns of a file dialog's filter are for the machine.
        const int patterns = source.endsWith(')') ? source.indexOf("(*") : -1;
        QString text;
        double owed = 0;
        for (int i = 0; i < source.size(); ++i) {
            const QChar c = source.at(i);
            if (i == patterns) {
                return "[" + text + "] " + source.mid(i);
            }
            text.append(c);
            const bool isMark = i > 0 && (source.at(i - 1) == '%' || source.at(i - 1) == '&');
            if (!c.isLetter() || isMark) {
                continue;
            }
            const int at = plain.indexOf(c);
            text.back() = at < 0 ? c : accented.at(at);
            for (owed += 0.4; owed >= 1; owed -= 1) {
                text.append(text.back());
            }
        }
        return "[" + text + "]";
    }
};
