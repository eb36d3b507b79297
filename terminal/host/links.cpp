#include "terminal/host/links.h"

#include <QFile>

#include "screen/host/shared_tags.h"

namespace jogeon::terminal {

// Major id 0 is no id.
Links::Links(const std::string& user, const HomeFolder& home, std::vector<std::string> accounts)
    : majorIds_(1),
      accounts_(std::move(accounts)),
      home_(QFile::encodeName(home.path).toStdString()),
      configuration_(QFile::encodeName(home.configuration).toStdString()) {
    tags_[{host::tags::kUserKey, host::tags::kUserTag}] = user;
}

std::string Links::NVLink_GetLinkTagData(const std::string& mainKey, const std::string& tag, int* found) {
    const auto entry = tags_.find({mainKey, tag});
    if (found) *found = entry != tags_.end();
    return entry == tags_.end() ? std::string() : entry->second;
}

void Links::NVLink_SetLinkTagData(const CNVLinkInfoItem& item) {
    tags_[{item.m_strMainKey, item.m_strTag}] = item.m_strValue;
}

void Links::NVLink_SetMultiCodeLinkTagData(const std::string& title, const std::vector<std::string>& codes) {
    codes_[title] = codes;
    emit CodesPublished();
}

std::uint8_t Links::NVLink_GetNewMajorID(host::WindowHandle) {
    for (std::size_t id = 1; id < majorIds_.size(); ++id) {
        if (majorIds_.test(id)) continue;
        majorIds_.set(id);
        return static_cast<std::uint8_t>(id);
    }
    return 0;
}

void Links::NVLink_DeleteMajorID(std::uint8_t majorId) {
    if (majorId != 0) majorIds_.reset(majorId);
}

// Any kind but "44", whose home stands under another key.
std::string Links::NVLink_GetMaeCheGB(int) {
    return "00";
}

int Links::NVLink_GetAccountCount() {
    return static_cast<int>(accounts_.size());
}

std::string Links::NVLink_GetAccount(int index) {
    const auto at = static_cast<std::size_t>(index);
    return index >= 0 && at < accounts_.size() ? accounts_[at] : std::string();
}

// "12345678901" reads "12345678-901": screens cut the first eight digits into pieces of their own.
std::string Links::NVLink_GetAccountFmt(const std::string& account, int) {
    return account.size() <= 8 ? account : account.substr(0, 8).append("-").append(account, 8);
}

std::string Links::GetRunTimePath() {
    return home_;
}

std::string Links::ConfigurationFolder() {
    return configuration_;
}

std::vector<std::string> Links::CodesOf(const std::string& title) const {
    const auto entry = codes_.find(title);
    return entry == codes_.end() ? std::vector<std::string>() : entry->second;
}

}  // namespace jogeon::terminal
