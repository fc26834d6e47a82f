#pragma once

#include "datasourceconfig.h"
#include "dynamicdata.h"
#include "inodeclient.h"
#include "lctrlsexexport.h"
#include "ltexteffectnode.h"
#include "recordsjson.h"

#include <QImage>
#include <QPointer>
#include <QStringList>
#include <QVector>

#include <memory>

class LConditionalStyling;
class LFrameNode;
class LModbusParameterOperation;
class QDialog;

namespace lctrlsex {
class ClientForm;
class StyleFiler;
} // namespace lctrlsex

namespace Lum {
namespace LTextPlugin {

/**
 * The object through which a host drives the text item: it binds the item's node, keeps node,
 * editor and attributes panel in step, and pages through the item.
 *
 * The node belongs to the host and may go at any time, also during a call that this class makes.
 * So may the binding change: whatever a setter or a signal sets off may come back in here. Each
 * operation therefore stops when the node that it began with is gone or no longer bound. Without
 * a node the controls are disabled and the pages read 1 / 1. GUI thread only.
 */
class LCTRLSEX_EXPORT LTextClient : public Lum::INodeClient
{
    Q_OBJECT

public:
    /**
     * What the three entries of continuous movement put into the list of display effects, and so
     * onto the node; no number of LEffectNode::EffectType comes near them.
     */
    enum ContinuousMoveEffect {
        ContinuousMoveLeft = 101,
        ContinuousMoveRight = 102,
        ContinuousMoveUp = 103,
    };

    /**
     * The one client. It is made on first use, without a parent, and deleted with the application,
     * unless the window of a host that it was laid into went before: then the next call makes
     * another one. Null without a QApplication.
     */
    [[nodiscard]] static LTextClient *instance();
    ~LTextClient() override;

    QWidget *GetClient() override;
    QWidget *GetAttributesWidget(LNode *node) override;
    QWidget *GetEditeWidget(LNode *node) override;
    void Init(LNode *node) override;
    void Finish() override;

    /** Reads the bound node into the panel and the editor; nothing without one. */
    void InitAttribues();
    /**
     * Shows what applies to the screen of @p node and hides the rest. True when that screen shows
     * the effects made for LCD screens; false for null and for a node without a screen.
     */
    bool SwitchLcdShow(LNode *node);

    /** The current page as the screen shows it; null when the node is gone or has no size. */
    [[nodiscard]] QImage getCurImage();
    /** Page @p index, from 1, as the screen shows it; null as above. */
    [[nodiscard]] QImage getIndexImage(int index);

private slots:
    void Translate();
    /** Copies the border of the node's frame to the node. */
    void OnFrameChanged();
    /** Shows page @p current of @p total; both are raised to 1, the page is cut to the count. */
    void PageChanged(int current, int total);
    void on_PrePage_released();
    void on_NextPage_released();
    void on_GUID_editingFinished();
    /** Registers the fields on offer on the node; calls that come back meanwhile run behind. */
    void HandleConfigChanged();
    /** Shows the field chooser when the document holds a table. */
    void DocumentHasTable(bool value);

    // Play and effects; each writes to the node unless the controls are being filled from it

    void OnDisplayEffects(int val);
    void OnClearSreenEffects(int val);
    /** Writes the speed; an item that is not held at all is held five seconds from then on. */
    void OnDisplayInterval(int val);
    void OnClearInterval(int val);
    /** @p val in seconds; stored in tenths, the rest is cut off. */
    void OnRemainInterval(double val);
    void OnNoEffect();
    void OnRandom();
    void OnPlayTypeChanged();
    void OnByTimeChanged(int val);
    void OnByCountChanged(int val);
    /** Also chooses a direction, or takes it away; it is a display effect. */
    void OnContinuousMove(bool checked);

    // Data

    /**
     * Edits the conditional styles that the node stores in a modal dialog. Accepted without a
     * change it writes nothing; the identifiers of what was there before stay, because texts refer
     * to them. The host gets the clipboard back in any case.
     */
    void OnConditionalStylesClicked();
    /** The same for calculations; says that sources changed when the clipboard did. */
    void OnSetOperationClicked();
    /** Hands the fields on offer to the dialog that is open. */
    void UpdateDialogs();
    /** Takes over what became of PrepareDynamicDataWithPrefix() and stores it on the node. */
    void AcceptConditionalStyles(const DynamicData &result);
    /** Takes over what became of PrepareDynamicDataCal() and stores it on the node. */
    void AcceptOperations(const CalculationDynamicData &result);
    /** Binds the table to @p bindField, empty for none; the field that it has writes nothing. */
    void OnTableBindFieldChanged(const QString &bindField);

    /** Follows a binding of the table that was not made with the field chooser. */
    void ShowBoundField();
    /** Disables what acts on a node and resets the pages; also run when the host deletes it. */
    void ShowUnbound();
    /** The host deleted the window with the attributes panel: makes another one. */
    void AttributesDestroyed();

private:
    class AtExit;
    class Bound;
    class Filling;

    LTextClient();
    static void deleteInstance();
    void CutOff();

    void PreparePanel();
    void InitUI();
    void ConnectPlayType();
    void ConnectPanel();
    void ConnectData();
    [[nodiscard]] static LTextEffectNode *TextNodeOf(LFrameNode *frame);
    /** False when the node is bound already. */
    bool BindNode(LTextEffectNode *node, LFrameNode *frameNode);
    void BindForWidget(LNode *node);
    void ShowPage(int page);

    void InitEffectParam();
    void FillPlayType();
    void ShowPlayType();
    void SetDisPlayEffects(const QStringList &list, bool flag);
    void FillEffects();
    void SetBtnStyle();
    void ShowDependents();
    void SelectEffect(int effectType);
    void TranslateEffects();
    void TranslateTexts();
    void TranslateToolTips();

    // Records of conditional styles and calculations; each reading replaces what was there

    /** The text of @p styles, whose names the editor offers from then on. */
    [[nodiscard]] QString DynamicDataListToJson(QMap<QString, DynamicData> &styles);
    void JsonToDynamicDataList(const QString &jsonString, QMap<QString, DynamicData> &dynamicData);
    /** The text of the calculations, whose default values the editor offers from then on. */
    [[nodiscard]] QString DynamicDataListToJsonCalculation();
    void JsonToDynamicDataListCalculation(const QString &text);
    /** All styles with qualified keys, and the single fields on offer, the table's in front. */
    void PrepareDynamicDataWithPrefix(DynamicData &combinedData);
    /** All calculations, and the same fields with their values; what else is there stays. */
    void PrepareDynamicDataCal(CalculationDynamicData &combinedData);
    void ProcessDialogResult(DynamicData resultData);
    void ProcessDialogResultCalculation(CalculationDynamicData resultData);
    /** Files a condition of the entry at hand under its source. */
    void ProcessSpanCondition(SpanCondition spanCond);
    void ProcessCalculation(CalculationCondition &calculation);
    /** Reads what the node stores, unless it is what was read last. */
    void LoadRecords();

    /** Has a copy of unreadable @p records kept and says so; false when that failed. */
    [[nodiscard]] bool KeepUnreadable(const lctrlsex::RecordsFault &fault, const QString &records,
                                      const QString &title);
    /** Whether it was accepted, and the node stayed bound all the time. */
    [[nodiscard]] bool RunDialog(QDialog *dialog);
    /** Closes what was opened for a node that is let go of, whatever it answers. */
    void AbandonDialogs();

    /** Values of the fields that an item may use, by qualified name. */
    [[nodiscard]] static QMap<QString, QString>
    FieldsOnOffer(const DataSourceConfig &config, const QVector<DynamicDataSource> &sources);
    /** The single ones of @p fields, those of the key @p bound in front. */
    [[nodiscard]] static QVector<CalculationVariable>
    VariablesOf(const QMap<QString, QString> &fields, const QString &bound);
    /** False when node, configuration and fields are those of the last time. */
    bool RegisterFields();
    /** Key of the table as its type has it; empty when it is unbound. */
    [[nodiscard]] QString BoundField();
    void ApplyBoundField();
    void FillFieldChooser();

    Q_DISABLE_COPY(LTextClient)

    static LTextClient *instance_; ///< Plain, so that it can be asked after all destructors.

    std::unique_ptr<lctrlsex::ClientForm> m_form;
    bool m_initialising = true;
    int m_currentPage = 1;
    int m_pageCount = 1;
    LTextEffectNode::LTextPluginType m_textMode = LTextEffectNode::SingleLine;
    bool m_sourceMode = false;
    QPointer<LTextEffectNode> m_node;
    QPointer<LFrameNode> m_frameNode;
    bool m_lcdEffects = false;
    QStringList m_effectTypes;
    bool m_onlyEffectTypes = false;
    QPointer<LTextEffectNode> m_registeredNode;
    DataSourceConfig m_config;
    QVector<DynamicDataSource> m_sources;
    QStringList m_fieldEntries;
    QPointer<LTextEffectNode> m_recordsNode;
    QString m_stylesText;
    QString m_calculationsText;
    lctrlsex::RecordsFault m_stylesFault;
    lctrlsex::RecordsFault m_calculationsFault;
    QPointer<LConditionalStyling> m_stylesDialog;
    QPointer<LModbusParameterOperation> m_operationsDialog;
    bool m_areDialogsAbandoned = false;
    QMap<QString, DynamicData> m_conditionalStyles; ///< By the name of the data source.
    QVector<CalculationCondition> m_calculations;
    std::unique_ptr<lctrlsex::StyleFiler> m_filer;
    bool m_hasTable = false;
    bool m_handlingConfig = false;
    bool m_configStale = false;
};

} // namespace LTextPlugin
} // namespace Lum
