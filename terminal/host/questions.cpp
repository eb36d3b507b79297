#include "terminal/host/questions.h"

#include <QDialog>
#include <QMessageBox>
#include <cstdio>

#include "screen/text/cp949.h"

namespace jogeon::terminal {
namespace {

QMessageBox::Icon IconOf(host::Icon icon) {
    switch (icon) {
        case host::Icon::Warning:
            return QMessageBox::Warning;
        case host::Icon::Question:
            return QMessageBox::Question;
        default:
            return QMessageBox::Information;
    }
}

QMessageBox::StandardButtons ButtonsOf(host::Buttons buttons) {
    switch (buttons) {
        case host::Buttons::YesNo:
            return QMessageBox::Yes | QMessageBox::No;
        case host::Buttons::YesNoCancel:
            return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
        default:
            return QMessageBox::Ok;
    }
}

host::Answer AnswerOf(int button) {
    switch (button) {
        case QMessageBox::Yes:
            return host::Answer::Yes;
        case QMessageBox::No:
            return host::Answer::No;
        case QMessageBox::Cancel:
            return host::Answer::Cancel;
        default:
            return host::Answer::Ok;
    }
}

}  // namespace

host::Answer MessageBoxes::Ask(const host::Box& box) {
    QMessageBox shown(&mainWindow_);
    shown.setTextFormat(Qt::PlainText);
    shown.setText(QString::fromStdString(ToUtf8(box.text)));
    shown.setWindowTitle(QString::fromStdString(ToUtf8(box.caption)));
    shown.setIcon(IconOf(box.icon));
    shown.setStandardButtons(ButtonsOf(box.buttons));
    for (const auto& [button, text] : {std::pair(QMessageBox::Ok, "확인"),
                                       {QMessageBox::Yes, "예"},
                                       {QMessageBox::No, "아니오"},
                                       {QMessageBox::Cancel, "취소"}}) {
        if (QAbstractButton* existing = shown.button(button)) existing->setText(text);
    }
    return AnswerOf(shown.exec());
}

bool MessageBoxes::Run(const std::string&, void* object) {
    auto* dialog = static_cast<QDialog*>(object);
    // A dialog without a place of its own stands in the middle of the window.
    if (!dialog->testAttribute(Qt::WA_Moved)) {
        dialog->move(mainWindow_.frameGeometry().center() - dialog->rect().center());
    }
    return dialog->exec() == QDialog::Accepted;
}

host::Answer PrintedQuestions::Ask(const host::Box& box) {
    std::fprintf(stderr, "[%s] %s\n", ToUtf8(box.caption).c_str(), ToUtf8(box.text).c_str());
    if (box.buttons == host::Buttons::YesNoCancel) return host::Answer::Cancel;
    return box.buttons == host::Buttons::YesNo ? host::Answer::No : host::Answer::Ok;
}

bool PrintedQuestions::Run(const std::string& dialog, void*) {
    std::fprintf(stderr, "[%s]\n", dialog.c_str());
    return false;
}

}  // namespace jogeon::terminal
