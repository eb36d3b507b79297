// The parameter panel: shows the parameters of one indicator and lets the user edit them.
//
// The catalogue says which controls there are and where. A button commits and checks the fields; if they are
// in order it sends the owner kPanelAdd or kPanelReplace, and the owner takes the condition from here.
#pragma once

#include <QPushButton>
#include <QWidget>
#include <memory>
#include <string>

#include "screen/condition/field_controls_widget.h"
#include "screen/condition/index_info.h"
#include "screen/host/messages.h"
#include "screen/host/services.h"

namespace jogeon {

// Which buttons the panel shows.
enum class PanelMode {
    Existing = 0,  // a condition of the list: add and modify
    New = 1,       // an indicator of the tree: add
    Empty = -1,    // none
};

class BBoxPanel : public QWidget {
    Q_OBJECT

public:
    // `owner` is the window that gets the messages. The services outlive the panel.
    BBoxPanel(host::WindowHandle owner, host::Questions& questions, host::LinkStore& links,
              QWidget* parent = nullptr);
    ~BBoxPanel() override;

    // Drops what is shown, then, with `rebuild`, shows the parameters of `info`, which may be null or have
    // none: the panel is empty then, and its buttons do nothing.
    void ShowIndex(bool rebuild, const CIndexInfo* info, PanelMode mode);

    void RefreshColors() { controls_.RefreshPictures(); }  // after a change of the colour table

    // Shows nothing. For an owner whose conditions go away.
    void Reset() { ShowIndex(false, nullptr, PanelMode::Empty); }

    // The condition shown has become `added` of the owner's list: it can be modified from now on.
    void OnAdded(const CIndexInfo& added);

    // The record last shown, which the panel only compares; null if none.
    const CIndexInfo* Current() const { return m_pCurrent; }

    // Keeps `info` as the current one and makes the panel's own record a copy of it.
    void SetHead(const CIndexInfo& info);

    // Writes the head into `info`, all but letter and check marks.
    void GetHead(CIndexInfo& info) const;

    // Brings the fields of `info` and its role values to the state of the panel, as last committed.
    void UpdateValues(CIndexInfo& info) const;

    // Reads, checks and describes the fields. False if one was refused: the user has been told, and the
    // focus is on it.
    bool CommitFields();

    // A new condition with the panel's state as last committed, its description built. Letter and check
    // marks are the defaults. An owner that replaces a condition puts this one in its place.
    std::unique_ptr<CIndexInfo> TakeCondition() const;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void PlaceButtons();
    void DestroyFields();
    void CreateFields(const FieldArray& source);
    void SetTabOrder();
    void GreyUnusedFields();
    void ApplyMode(PanelMode mode);
    void Press(host::MessageNumber message);

    const host::WindowHandle owner_;
    host::Questions& questions_;
    std::unique_ptr<CIndexInfo> m_pIndex = std::make_unique<CIndexInfo>();
    const CIndexInfo* m_pCurrent = nullptr;
    std::unique_ptr<FieldArray> m_Fields;  // null while the panel is empty
    std::string m_strPreview;
    unsigned showing_ = 0;  // counts what was shown, to tell whether it still is
    QPushButton add_;
    QPushButton modify_;
    QPushButton* usual_ = &add_;  // the one that Enter presses
    FieldControlSet controls_;
};

}  // namespace jogeon
