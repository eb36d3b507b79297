// The help on expressions: a list of topics beside the text of the chosen one.
#pragma once

#include <QDialog>

#include "screen/host/services.h"

class QListWidget;
class QPlainTextEdit;

namespace jogeon {

class ExpressionHelpDialog : public QDialog {
    Q_OBJECT

public:
    ExpressionHelpDialog();

private:
    void FillTopics();
    void ShowTopic(int row);

    QListWidget* topics_;
    QPlainTextEdit* text_;
};

// Shows it until the user closes it.
void OnExpressionHelp(host::Questions& questions);

}  // namespace jogeon
