// The dialogs over saved sets, run by the host.
#pragma once

#include <QWidget>

#include "screen/host/services.h"
#include "screen/saved/saved_questions.h"

namespace jogeon {

class SavedDialogs final : public SavedQuestions {
public:
    // The dialogs belong to `screen`'s window while they run. Both outlive this object.
    SavedDialogs(QWidget& screen, host::Questions& questions) : screen_(screen), questions_(questions) {}

    std::optional<std::string> AskName(const std::vector<std::string>& used,
                                       const std::string& start) override;
    std::optional<ImportChoice> AskImport(const std::filesystem::path& folder,
                                          const std::string& currentId) override;
    std::optional<std::vector<std::size_t>> AskOrder(const std::vector<SavedSetName>& sets) override;

private:
    QWidget& screen_;
    host::Questions& questions_;
};

}  // namespace jogeon
