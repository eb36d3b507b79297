// Asks for the name under which a set is saved.
//
// Relies on the host's boxes to say what is wrong with a name; the dialog stays open then.
#pragma once

#include <QDialog>
#include <QLineEdit>
#include <string>
#include <vector>

#include "screen/host/services.h"

namespace jogeon {

class NameDialog : public QDialog {
    Q_OBJECT

public:
    // `names` are in use and may not be taken; `start` stands in the box at first. Texts are CP949.
    NameDialog(std::vector<std::string> names, const std::string& start, host::Questions& questions,
               QWidget* parent = nullptr);

    // The name that was agreed, trimmed; empty before.
    const std::string& Name() const { return m_strName; }

    void accept() override;

private:
    std::string m_strName;
    std::vector<std::string> m_Names;
    host::Questions& questions_;
    QLineEdit edit_;
};

}  // namespace jogeon
