// Tells the user that an expression is wrong, with a hand at the place where it failed.
#pragma once

#include <QDialog>
#include <string>

class QPlainTextEdit;

namespace jogeon {

class ExpressionErrorDialog : public QDialog {
    Q_OBJECT

public:
    // `marked` is the expression with the hand in it, CP949.
    explicit ExpressionErrorDialog(const std::string& marked);

protected:
    void showEvent(QShowEvent* event) override;

private:
    QWidget* MakeHeading();
    void FillText(const std::string& marked);

    QPlainTextEdit* text_;
};

}  // namespace jogeon
