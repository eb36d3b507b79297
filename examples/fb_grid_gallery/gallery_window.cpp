#include "gallery_window.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QShortcut>
#include <utility>

#include "shown_code.h"

namespace {

constexpr int kLoggedLines = 500;
constexpr int kMargin = 14;

// Letters of one width; Korean ones too, where there is such a font.
QFont CodeFont() {
    const QFontInfo fixed(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    QFont font(QStringList{fixed.family(), "NanumGothicCoding", "D2Coding"});
    font.setPointSizeF(QGuiApplication::font().pointSizeF());
    return font;
}

QPlainTextEdit& ReadOnlyText(const QString& name) {
    auto& text = *new QPlainTextEdit;
    text.setReadOnly(true);
    text.setTabChangesFocus(true);
    text.setLineWrapMode(QPlainTextEdit::NoWrap);
    text.setFont(CodeFont());
    text.setAccessibleName(name);
    return text;
}

QLabel* Caption(const QString& text, QWidget& of) {
    auto* caption = new QLabel(text);
    caption->setBuddy(&of);
    return caption;
}

}  // namespace

GalleryWindow::GalleryWindow()
    : list_(*new QListWidget),
      stack_(*new QStackedWidget),
      code_(ReadOnlyText("The code of this page")),
      log_(ReadOnlyText("What the grid tells")),
      pages_(Pages().size()) {
    setWindowTitle(QGuiApplication::applicationDisplayName());
    log_.setMaximumBlockCount(kLoggedLines);
    auto* centre = new QWidget;
    auto* row = new QHBoxLayout(centre);
    row->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    row->setSpacing(kMargin);
    row->addWidget(MakeLeft());
    row->addWidget(MakeRight(), 1);
    setCentralWidget(centre);
    AddPageShortcut(Qt::Key_PageDown, 1);
    AddPageShortcut(Qt::Key_PageUp, -1);
    connect(&list_, &QListWidget::currentRowChanged, this, &GalleryWindow::ShowPage);
    resize(1180, 760);
    list_.setCurrentRow(0);
    list_.setFocus();
}

QWidget* GalleryWindow::MakeLeft() {
    for (const PageEntry& page : Pages()) list_.addItem(page.name);
    list_.setSpacing(2);
    list_.setAccessibleName("Pages");
    auto* keys = new QLabel("Ctrl+Page Up, Ctrl+Page Down:\nanother page");
    auto* left = new QWidget;
    auto* column = new QVBoxLayout(left);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(&list_);
    column->addWidget(keys);
    left->setFixedWidth(qMax(list_.sizeHintForColumn(0) + 24, keys->sizeHint().width()));
    return left;
}

QWidget* GalleryWindow::MakeRight() {
    auto* clear = new QPushButton("C&lear");
    connect(clear, &QPushButton::clicked, &log_, &QPlainTextEdit::clear);
    auto* right = new QWidget;
    auto* grid = new QGridLayout(right);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(kMargin);
    grid->addWidget(&stack_, 0, 0, 1, 3);
    grid->setRowMinimumHeight(1, kMargin / 2);
    grid->addWidget(Caption("The &code of this page", code_), 2, 0, Qt::AlignBottom);
    grid->addWidget(Caption("What the grid &tells its parent", log_), 2, 1, Qt::AlignBottom);
    grid->addWidget(clear, 2, 2, Qt::AlignRight);
    grid->addWidget(&code_, 3, 0);
    grid->addWidget(&log_, 3, 1, 1, 2);
    setTabOrder(&log_, clear);
    grid->setRowStretch(0, 3);
    grid->setRowStretch(3, 2);
    grid->setColumnStretch(0, 7);
    grid->setColumnStretch(1, 3);
    return right;
}

void GalleryWindow::AddPageShortcut(Qt::Key key, int step) {
    auto* shortcut = new QShortcut(QKeySequence(Qt::CTRL | key), this);
    connect(shortcut, &QShortcut::activated, this,
            [this, step] { list_.setCurrentRow(qBound(0, list_.currentRow() + step, list_.count() - 1)); });
}

GridPage& GalleryWindow::Page(int index) {
    GridPage*& page = pages_[static_cast<std::size_t>(index)];
    if (!page) {
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
        page = Pages()[static_cast<std::size_t>(index)].make().release();  // the stack's from here
        QGuiApplication::restoreOverrideCursor();
        connect(page, &GridPage::Told, &log_, &QPlainTextEdit::appendPlainText);
        page->FocusFirstCell();
        stack_.addWidget(page);
        QWidget* before = &list_;
        for (QWidget* stop : page->TabStops()) setTabOrder(std::exchange(before, stop), stop);
    }
    return *page;
}

// A grid takes the focus when it gets its size; whoever goes through the list keeps it there.
void GalleryWindow::ShowPage(int index) {
    const bool inList = list_.hasFocus();
    list_.setCurrentRow(index);
    GridPage& page = Page(index);
    stack_.setCurrentWidget(&page);
    code_.setPlainText(ShownCode(page.File()));
    log_.clear();
    if (inList) list_.setFocus();
}
