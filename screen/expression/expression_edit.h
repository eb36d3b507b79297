// The expression box: the boolean expression over the condition letters, in its display form.
#pragma once

#include <QPlainTextEdit>
#include <string>

namespace jogeon {

class ExpressionEdit : public QPlainTextEdit {
    Q_OBJECT

public:
    static constexpr int kTextLimit = 256;  // characters

    explicit ExpressionEdit(QWidget* parent = nullptr);

    // CP949, as all text of the screen; characters outside it read as '?'.
    std::string ExpressionText() const;
    void SetExpressionText(const std::string& text);

protected:
    void keyPressEvent(QKeyEvent* event) override;  // the expression stays one line

private:
    void KeepLimit();
};

}  // namespace jogeon
