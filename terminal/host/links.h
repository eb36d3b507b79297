// Shared tags, major ids, accounts and paths, as the terminal gives them to its screens.
#pragma once

#include <QObject>
#include <bitset>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "screen/host/services.h"
#include "terminal/home_folder.h"

namespace jogeon::terminal {

class Links : public QObject, public host::LinkStore {
    Q_OBJECT

public:
    Links(const std::string& user, const HomeFolder& home, std::vector<std::string> accounts);

    std::string NVLink_GetLinkTagData(const std::string& mainKey, const std::string& tag,
                                      int* found) override;
    void NVLink_SetLinkTagData(const CNVLinkInfoItem& item) override;
    void NVLink_SetMultiCodeLinkTagData(const std::string& title,
                                        const std::vector<std::string>& codes) override;
    std::uint8_t NVLink_GetNewMajorID(host::WindowHandle window) override;
    void NVLink_DeleteMajorID(std::uint8_t majorId) override;
    std::string NVLink_GetMaeCheGB(int) override;
    int NVLink_GetAccountCount() override;
    std::string NVLink_GetAccount(int index) override;
    std::string NVLink_GetAccountFmt(const std::string& account, int form) override;
    std::string GetRunTimePath() override;
    std::string ConfigurationFolder() override;

    // The user's accounts are others now.
    void SetAccounts(std::vector<std::string> accounts) { accounts_ = std::move(accounts); }

    // The codes published last under a title.
    std::vector<std::string> CodesOf(const std::string& title) const;

signals:
    // Codes have been published, and before them the tags that say how they were found.
    void CodesPublished();

private:
    std::map<std::pair<std::string, std::string>, std::string> tags_;
    std::map<std::string, std::vector<std::string>> codes_;
    std::bitset<256> majorIds_;
    std::vector<std::string> accounts_;
    const std::string home_;
    const std::string configuration_;
};

}  // namespace jogeon::terminal
