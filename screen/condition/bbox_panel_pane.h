// The parameter panel: shows which indicator the selected condition is on.
#pragma once

#include <QLabel>

#include "screen/condition/index_info.h"

namespace jogeon {

class BBoxPanel : public QLabel {
    Q_OBJECT

public:
    explicit BBoxPanel(QWidget* parent = nullptr);

    void ShowIndex(const CIndexInfo& condition);
};

}  // namespace jogeon
