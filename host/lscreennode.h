#pragma once

#include "lnode.h"

/** One screen of a controller: the wall on which frames lie. */
class LCOMMON_EXPORT LScreenNode : public LNode
{
    Q_OBJECT

public:
    explicit LScreenNode(LNode *parent = nullptr);
    ~LScreenNode() override;

    /** "Screen". */
    [[nodiscard]] QString TypeText() const override;
    /** The type text of a frame. */
    [[nodiscard]] QString ChildType() const override;
    /** The screen's own size, else its controller's. */
    [[nodiscard]] QSize Size() const override;

    /** True when the controller drives LCD displays; false without a controller. */
    [[nodiscard]] bool IsLCDDevice() const;

    /** Whether an LCD screen plays the effects made for it; true by default. Spelt so. */
    [[nodiscard]] bool GetUseLcdEeffct() const;
    void SetUseLcdEeffct(bool value);

    /** Model name of the controller; empty when unknown or without a controller. */
    [[nodiscard]] QString GetDeviceModel() const;
};
