#include "recordscheck.h"

#include "condition.h"
#include "documentstorage.h"
#include "ltexteffectnode.h"
#include "operationchain.h"
#include "recordsjson.h"
#include "shorttext.h"
#include "table/fieldformat.h"
#include "templatetext.h"

#include <QCoreApplication>

namespace player {

using namespace lctrlsex;

namespace {

constexpr int NameShown = 40;

/** Texts of this file, under one name for translators. */
struct RecordsCheckTexts
{
    Q_DECLARE_TR_FUNCTIONS(RecordsCheck)
};

class RecordsCheck
{
public:
    explicit RecordsCheck(const QString &place)
        : m_place(place)
    {}

    Problems run(const LTextEffectNode &node)
    {
        ConditionalStyles styles;
        report(stylesFromJson(node.GetSpanConditions(), &styles),
               RecordsCheckTexts::tr("conditional styles"));
        const QSet<QString> used = usedIds(node);
        for (const DynamicData &source : qAsConst(styles)) {
            for (const FieldConditions &entry : source.items) {
                checkEntry(entry);
                checkUse(entry, used);
            }
        }
        QVector<CalculationCondition> calculations;
        report(calculationsFromJson(node.GetCalculation(), &calculations),
               RecordsCheckTexts::tr("calculations"));
        for (const CalculationCondition &calculation : qAsConst(calculations)) {
            checkCalculation(calculation);
        }
        return m_problems;
    }

private:
    void warn(const QString &part, const QString &reason, const QString &remedy)
    {
        m_problems.append(
            {Problem::Warning, m_place + QStringLiteral(": ") + part, reason, remedy});
    }

    void report(const RecordsFault &fault, const QString &part)
    {
        if (fault) {
            warn(part,
                 RecordsCheckTexts::tr("they cannot be read from character %1 on: %2")
                     .arg(QString::number(fault.offset), fault.reason),
                 RecordsCheckTexts::tr("mend them in the programme file or set them anew"));
        }
    }

    /** Identifiers of the styles that text and fields of the author's document refer to. */
    static QSet<QString> usedIds(const LTextEffectNode &node)
    {
        const QString stored = node.GetRawHtmlText();
        const TemplateText text(stored.isEmpty() ? node.GetHtmlText()
                                                 : decodeDocument(stored).html);
        QSet<QString> ids;
        for (const TemplateStyle &style : text.styles()) {
            ids.insert(style.id);
        }
        for (const TemplateImage &image : text.images()) {
            ids.insert(FieldStyle::fromString(image.style).conditionId);
        }
        return ids;
    }

    void checkUse(const FieldConditions &entry, const QSet<QString> &used)
    {
        if (!used.contains(entry.id) || entry.id.isEmpty()) {
            warn(
                RecordsCheckTexts::tr("conditional style %1").arg(shortText(entry.name, NameShown)),
                RecordsCheckTexts::tr("nothing in the item uses it"),
                RecordsCheckTexts::tr("give it to a text or delete it"));
        }
    }

    void checkEntry(const FieldConditions &entry)
    {
        for (int i = 0; i < entry.conditions.size(); ++i) {
            const QString flaw = Condition(entry.conditions.at(i)).flaw();
            if (!flaw.isEmpty()) {
                warn(RecordsCheckTexts::tr("conditional style %1, condition %2")
                         .arg(shortText(entry.name, NameShown), QString::number(i + 1)),
                     flaw, RecordsCheckTexts::tr("change the condition or delete it"));
            }
        }
    }

    /** Without data nothing can be said of values; what is reported is wrong with any. */
    void checkCalculation(const CalculationCondition &calculation)
    {
        const OperationChain chain(calculation, {});
        OperationResults results;
        chain.evaluate({}, &results);
        for (int i = 0; i < chain.stepCount(); ++i) {
            switch (results[size_t(i)].problem) {
            case OperationProblem::UnknownOperator:
            case OperationProblem::WrongArgumentCount:
            case OperationProblem::LaterStep:
            case OperationProblem::OwnStep:
            case OperationProblem::NoSuchStep:
                warn(RecordsCheckTexts::tr("calculation %1")
                         .arg(shortText(calculation.key, NameShown)),
                     chain.reason(i, {}, results),
                     RecordsCheckTexts::tr("change the step or delete it"));
                break;
            default:
                break;
            }
        }
    }

    QString m_place;
    Problems m_problems;
};

} // namespace

Problems checkRecords(const LTextEffectNode *node, const QString &place)
{
    return node != nullptr ? RecordsCheck(place).run(*node) : Problems();
}

} // namespace player
