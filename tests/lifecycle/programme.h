#pragma once

#include "lcontrollernode.h"
#include "lframenode.h"
#include "lscreennode.h"
#include "ltexteffectnode.h"

#include <QPointer>

// Nodes that are known to be alive from their construction until their destructor begins, whose
// announcements count as moments at which a host may strike, as do the calls of what they override.

class TestScreen : public LScreenNode
{
public:
    TestScreen();
    ~TestScreen() override;
    [[nodiscard]] QString TypeText() const override;
    [[nodiscard]] QSize Size() const override;
};

class TestFrame : public LFrameNode
{
public:
    TestFrame();
    ~TestFrame() override;
    [[nodiscard]] QString TypeText() const override;
    [[nodiscard]] QString ChildType() const override;
    [[nodiscard]] QSize Size() const override;
};

class TestItem : public LTextEffectNode
{
public:
    TestItem();
    ~TestItem() override;
    [[nodiscard]] QString TypeText() const override;
    [[nodiscard]] QSize Size() const override;
};

/** A controller with one screen, one frame and one text item, any of which may go before. */
class Programme
{
public:
    /** @p html is the item's document; an empty one makes a new item. */
    explicit Programme(const QString &html);
    ~Programme();

    /** All attributes of the item, for comparisons; empty when it is gone. */
    [[nodiscard]] QVariantMap attributes() const;
    /** The item's document as the editor stored it. */
    [[nodiscard]] QString stored() const;
    /** Whether any attribute of the item holds @p text. */
    [[nodiscard]] bool holds(const QString &text) const;

    QPointer<LControllerNode> controller;
    QPointer<TestScreen> screen;
    QPointer<TestFrame> frame;
    QPointer<TestItem> item;

private:
    Q_DISABLE_COPY(Programme)
};
