#pragma once

#include "lcommon_global.h"

#include <QObject>
#include <QScopedPointer>
#include <QString>
#include <QStringList>
#include <QVariant>

class LDataPrivate;

/**
 * A named thing with attributes: the base of every node of a programme.
 *
 * All that a node keeps is one store of attributes, key to value; it is what a programme file holds
 * and what the typed accessors of the derived classes read and write. Used on the GUI thread only.
 */
class LCOMMON_EXPORT LData : public QObject
{
    Q_OBJECT

public:
    /** Makes an unnamed thing without attributes; @p parent follows Qt's rule of ownership. */
    explicit LData(QObject *parent = nullptr);
    ~LData() override;

    /** The name that the user sees; empty until one is set. Kept as the attribute "Name". */
    [[nodiscard]] QString name() const;
    void SetName(const QString &value);

    /** What kind of thing this is: a fixed word, never translated; empty for the base class. */
    [[nodiscard]] virtual QString TypeText() const;

    /** True when a value is stored under @p key, an empty text included. */
    [[nodiscard]] bool HasAttribute(const QString &key) const;
    /** The stored value as it was set or loaded; invalid when there is none. */
    [[nodiscard]] QVariant Attribute(const QString &key) const;
    /** Stores a value; an invalid @p value removes it, an empty @p key is ignored. */
    void SetAttribute(const QString &key, const QVariant &value);
    /**
     * Stores several values that belong together, as SetAttribute does each, and announces the
     * changes only when all are in place.
     */
    void SetAttributes(const QVariantMap &values);
    /** Forgets the value under @p key; nothing happens when there is none. */
    void RemoveAttribute(const QString &key);
    /** Keys of all stored values, sorted; unknown ones included. */
    [[nodiscard]] QStringList AttributeKeys() const;

    /** Files that belong to the thing for this run, such as "DynamicData" for page images. */
    [[nodiscard]] QStringList GetFilePath(const QString &kind) const;
    /** Replaces the files of one kind; they are not attributes and are never saved. */
    void SetFilePath(const QString &kind, const QStringList &files);

signals:
    /** A value was added, removed or became another one; never sent for an equal value. */
    void AttributeChanged(const QString &key);
    /** The files of one kind became other ones. */
    void FilePathChanged(const QString &kind);

private:
    Q_DISABLE_COPY(LData)
    const QScopedPointer<LDataPrivate> d;
};
