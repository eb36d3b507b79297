#include "screen/saved/import_dialog.h"

#include <QLabel>

#include "screen/saved/dialog_form_qt.h"
#include "screen/saved/import_dialog_places.h"
#include "screen/text/cp949.h"

namespace jogeon {

using namespace import_dialog;

namespace {

constexpr char kTitle[] = "아이디와 조건 선택";

// Says over an empty list why it is empty.
void ExplainEmpty(QTreeWidget& list) {
    auto* label = new QLabel("이 컴퓨터에 다른 아이디로\n저장된 조건이 없습니다.", &list);
    label->setAlignment(Qt::AlignCenter);
    label->setGeometry(list.rect());
}

}  // namespace

ImportDialog::ImportDialog(const std::filesystem::path& folder, const std::string& currentId,
                           host::Questions& questions, QWidget* parent)
    : QDialog(parent),
      m_strCurrentId(currentId),
      questions_(questions),
      ids_(ListImportIds(folder, m_strCurrentId)),
      idList_(this),
      setList_(this) {
    SetUpDialog(*this, kId, kTitle, kWidth, kHeight);
    SetUpList(idList_, {"사용자ID", "PC에 최종 저장된 시각"});
    PlaceControl(idList_, kPlaces, kIds);
    idList_.setColumnWidth(0, kIdColumnWidth);
    SetUpList(setList_, {"사용자조건"});
    PlaceControl(setList_, kPlaces, kSets);
    QPushButton& ok = AddButton(*this, kPlaces, kDialogOk, "확인");
    ok.setDefault(true);
    connect(&ok, &QPushButton::clicked, this, &ImportDialog::accept);
    connect(&AddButton(*this, kPlaces, kDialogCancel, "취소"), &QPushButton::clicked, this, &QDialog::reject);

    // The names of files are the platform's, not CP949.
    for (const ImportId& id : ids_) {
        new QTreeWidgetItem(&idList_, {QString::fromStdString(id.id), QString::fromStdString(id.lastSaved)});
    }
    if (ids_.empty()) ExplainEmpty(idList_);
    connect(&idList_, &QTreeWidget::currentItemChanged, this,
            [this](QTreeWidgetItem* item) { ShowSetsOf(idList_.indexOfTopLevelItem(item)); });
    connect(&setList_, &QTreeWidget::itemDoubleClicked, this, &ImportDialog::accept);
}

void ImportDialog::ShowSetsOf(int row) {
    sets_ = row < 0 ? std::vector<SavedSetName>() : ListSavedSets(ids_[static_cast<std::size_t>(row)].file);
    ListSets(setList_, sets_);
}

void ImportDialog::accept() {
    const auto selected = setList_.selectedItems();
    if (selected.isEmpty()) {
        questions_.Ask({"선택된 조건이 없습니다. 다시 선택하여 주시기 바랍니다."_cp949, ToCp949(kTitle)});
        return;
    }
    const auto id = static_cast<std::size_t>(idList_.indexOfTopLevelItem(idList_.currentItem()));
    const auto set = static_cast<std::size_t>(setList_.indexOfTopLevelItem(selected.front()));
    choice_ = {ids_[id].file, sets_[set].number};
    QDialog::accept();
}

}  // namespace jogeon
