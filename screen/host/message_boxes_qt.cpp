#include "screen/host/message_boxes_qt.h"

#include <QAbstractButton>
#include <QDialog>
#include <QFileDialog>
#include <QMessageBox>

#include "screen/text/cp949_qt.h"

namespace jogeon::host {
namespace {

QMessageBox::Icon IconOf(Icon icon) {
    switch (icon) {
        case Icon::Warning:
            return QMessageBox::Warning;
        case Icon::Question:
            return QMessageBox::Question;
        default:
            return QMessageBox::Information;
    }
}

QMessageBox::StandardButtons ButtonsOf(Buttons buttons) {
    switch (buttons) {
        case Buttons::YesNo:
            return QMessageBox::Yes | QMessageBox::No;
        case Buttons::YesNoCancel:
            return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
        default:
            return QMessageBox::Ok;
    }
}

Answer AnswerOf(int button) {
    switch (button) {
        case QMessageBox::Yes:
            return Answer::Yes;
        case QMessageBox::No:
            return Answer::No;
        case QMessageBox::Cancel:
            return Answer::Cancel;
        default:
            return Answer::Ok;
    }
}

}  // namespace

Answer MessageBoxes::Ask(const Box& box) {
    QMessageBox shown(&window_);
    shown.setTextFormat(Qt::PlainText);
    shown.setText(ToQString(box.text));
    shown.setWindowTitle(ToQString(box.caption));
    shown.setIcon(IconOf(box.icon));
    shown.setStandardButtons(ButtonsOf(box.buttons));
    for (const auto& [button, text] : {std::pair(QMessageBox::Ok, tr("확인")),
                                       {QMessageBox::Yes, tr("예")},
                                       {QMessageBox::No, tr("아니오")},
                                       {QMessageBox::Cancel, tr("취소")}}) {
        if (QAbstractButton* existing = shown.button(button)) existing->setText(text);
    }
    return AnswerOf(shown.exec());
}

bool MessageBoxes::Run(const std::string&, void* object) {
    auto* dialog = static_cast<QDialog*>(object);
    // A dialog without a place of its own stands in the middle of the window.
    if (!dialog->testAttribute(Qt::WA_Moved)) {
        dialog->move(window_.frameGeometry().center() - dialog->rect().center());
    }
    return dialog->exec() == QDialog::Accepted;
}

std::optional<std::filesystem::path> MessageBoxes::AskSavePath(const FileQuestion& question) {
    QFileDialog dialog(&window_);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilter(ToQString(question.filterName));
    dialog.setDefaultSuffix(ToQString(question.extension));
    dialog.selectFile(ToQString(question.name));
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    return std::filesystem::path(dialog.selectedFiles().front().toStdU16String());
}

}  // namespace jogeon::host
