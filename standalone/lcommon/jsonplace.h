#pragma once

#include "lcommon_global.h"

#include <QByteArray>
#include <QString>
#include <QVector>

/** A place in a text file; both numbers count from 1, 0 where unknown. */
struct TextPlace
{
    int line = 0;
    int column = 0; ///< In characters, not bytes.
};

/** The way from the top of a JSON document to one of its values. */
class LCOMMON_EXPORT JsonPath
{
public:
    /** The same way and one step further, into an object or an array. */
    [[nodiscard]] JsonPath key(const QString &name) const;
    [[nodiscard]] JsonPath index(int position) const;

    /** For people: screens[1].frames[0].width; empty for the document itself. */
    [[nodiscard]] QString text() const;

    struct Step
    {
        QString name;      ///< Of a member, where position is below 0.
        int position = -1; ///< In an array.
    };
    [[nodiscard]] const QVector<Step> &steps() const { return m_steps; }

private:
    QVector<Step> m_steps;
};

/** Line and column of the byte at @p offset of the UTF-8 text @p bytes. */
[[nodiscard]] LCOMMON_EXPORT TextPlace placeOfOffset(const QByteArray &bytes, int offset);

/**
 * Where the value at @p path starts in @p json, a well-formed JSON text. The place of the nearest
 * value above it when there is none at @p path.
 */
[[nodiscard]] LCOMMON_EXPORT TextPlace placeOfValue(const QByteArray &json, const JsonPath &path);
