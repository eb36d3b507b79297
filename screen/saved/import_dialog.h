// Lets the user choose a set that was saved under another id on this computer.
#pragma once

#include <QDialog>
#include <QTreeWidget>
#include <filesystem>
#include <string>
#include <vector>

#include "screen/host/services.h"
#include "screen/saved/import_ids.h"
#include "screen/saved/saved_questions.h"

namespace jogeon {

class ImportDialog : public QDialog {
    Q_OBJECT

public:
    // The ids are those of the files in `folder`, without `currentId`.
    ImportDialog(const std::filesystem::path& folder, const std::string& currentId,
                 host::Questions& questions, QWidget* parent = nullptr);

    // What was chosen with OK; an empty section before.
    const ImportChoice& Choice() const { return choice_; }

    void accept() override;

private:
    void ShowSetsOf(int row);

    const std::string m_strCurrentId;
    host::Questions& questions_;
    std::vector<ImportId> ids_;       // by row
    std::vector<SavedSetName> sets_;  // of the id that is selected, by row
    QTreeWidget idList_;
    QTreeWidget setList_;
    ImportChoice choice_;
};

}  // namespace jogeon
