#include "screen/expression/expression_help_dialog.h"

#include <QGridLayout>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>

#include "screen/expression/expression_help_texts.h"
#include "screen/palette/dialog_style_qt.h"

namespace jogeon {
namespace {

constexpr QSize kSize(640, 340);
constexpr int kTextMargin = 8;
constexpr int kListMargin = 12;  // beside the widest topic
constexpr int kRowPadding = 4;

}  // namespace

ExpressionHelpDialog::ExpressionHelpDialog()
    : topics_(new QListWidget(this)), text_(new QPlainTextEdit(this)) {
    setObjectName("31513");
    setWindowTitle("수식 도움말");
    StyleDialog(*this);
    topics_->setObjectName("31515");
    text_->setObjectName("31514");
    text_->setReadOnly(true);
    text_->document()->setDocumentMargin(kTextMargin);
    auto* close = new QPushButton("닫 기", this);
    close->setObjectName("1");
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);

    auto* layout = new QGridLayout(this);
    layout->addWidget(topics_, 0, 0);
    layout->addWidget(text_, 0, 1);
    layout->addWidget(close, 1, 0, 1, 2, Qt::AlignRight);
    layout->setColumnStretch(1, 1);
    resize(kSize);
    FillTopics();
}

void ExpressionHelpDialog::FillTopics() {
    for (const HelpTopic& topic : ExpressionHelpTopics()) {
        auto* item = new QListWidgetItem(QString::fromUtf8(topic.entry), topics_);
        item->setSizeHint(QSize(fontMetrics().horizontalAdvance(item->text()) + 2 * kRowPadding,
                                fontMetrics().height() + 2 * kRowPadding));
    }
    topics_->setFixedWidth(topics_->sizeHintForColumn(0) + 2 * kListMargin);
    connect(topics_, &QListWidget::currentRowChanged, this, &ExpressionHelpDialog::ShowTopic);
    topics_->setCurrentRow(0);
    topics_->setFocus();
}

void ExpressionHelpDialog::ShowTopic(int row) {
    const auto topics = ExpressionHelpTopics();
    if (row < 0 || row >= static_cast<int>(topics.size())) return;
    text_->setPlainText(QString::fromUtf8(topics[static_cast<std::size_t>(row)].text));
}

void OnExpressionHelp(host::Questions& questions) {
    ExpressionHelpDialog dialog;
    questions.Run("ExpressionHelpDialog", &dialog);
}

}  // namespace jogeon
