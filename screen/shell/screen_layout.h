// The three layouts of the screen: where the controls stand in each, and which of them are hidden.
//
// It works on the controls through LayoutWindows. The normal layout is the one that the controls are in at
// first; the rectangles to come back to are taken from them whenever it is left.
#pragma once

#include <array>

#include "screen/settings/screen_settings.h"
#include "screen/shell/control_table.h"

namespace jogeon {

// The controls of the form, by number.
class LayoutWindows {
public:
    virtual ControlPlace Place(int id) const = 0;
    virtual void Move(int id, const ControlPlace& place) = 0;
    virtual void Show(int id, bool shown) = 0;
    virtual void SetCaption(int id, const char* caption) = 0;  // UTF-8

    // Whether the parameter panel has something to show.
    virtual bool PanelHolds() const = 0;

protected:
    ~LayoutWindows() = default;
};

class ScreenLayout {
public:
    static constexpr int kShift = 98;   // pixels that the large layout gives the conditions
    static constexpr int kGrowth = 40;  // pixels that the enlarged expression box reaches further down

    // The windows outlive this object and are in the normal layout.
    explicit ScreenLayout(LayoutWindows& windows) : windows_(windows) {}

    // One of the modes of screen_settings.h.
    int Mode() const { return mode_; }

    // At the start, straight to the layout that the user left; a number that is none stays at the normal one.
    void Start(int mode);

    // From the normal layout to results only, to large conditions, and back. An enlarged expression box is
    // restored first.
    void Next();

    // Enlarges or restores the expression box, which covers the button row meanwhile.
    void ToggleExpression();
    bool ExpressionEnlarged() const { return expressionEnlarged_; }

private:
    static constexpr std::size_t kMovedControls = 21;

    void SaveRects();
    void Apply(int mode);

    LayoutWindows& windows_;
    std::array<ControlPlace, kMovedControls> savedRects_{};  // of the normal layout
    int mode_ = kNormalLayout;
    bool expressionEnlarged_ = false;
};

}  // namespace jogeon
