#pragma once

#include "conditiontrial.h"

#include <QMap>
#include <QWidget>

class QCheckBox;
class QLabel;
class QLineEdit;
class QTreeWidget;

namespace lctrlsex {

/**
 * The test line of the styling dialog: a value, typed or live, and for the chosen item which of its
 * conditions holds, why the others do not, and a sample in the style that results.
 */
class TrialPanel : public QWidget
{
    Q_OBJECT

public:
    explicit TrialPanel(QWidget *parent);

    /** The current values by qualified field name. */
    void setLiveValues(const QMap<QString, QString> &values);

    /** The value to put to an item of that input source; null when there is none. */
    [[nodiscard]] QString valueFor(const QString &source) const;

    /** Shows what became of valueFor(@p source) among @p conditions of the item @p name. */
    void showTrial(const QString &name, const QString &source,
                   const QVector<SpanCondition> &conditions, const ConditionTrial &trial);
    /** Shows that there is no item to try; @p hint says what to do. */
    void showNothing(const QString &hint);

signals:
    /** The value, or where it comes from, is another one. */
    void changed();

private:
    void showSample(const QString &value, const FontStyle *style);

    QLineEdit *m_value;
    QCheckBox *m_isLive;
    QLabel *m_verdict;
    QTreeWidget *m_reasons;
    QLabel *m_sample;
    QMap<QString, QString> m_live;
};

} // namespace lctrlsex
