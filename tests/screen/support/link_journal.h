// One journal of what reaches the host of links: tags set, codes published, messages to its main window.
#pragma once

#include <string>
#include <vector>

#include "screen/host/messages.h"
#include "screen/text/bytes.h"
#include "screen/text/cp949.h"
#include "tests/screen/support/recorders.h"

namespace jogeon::test {

using Journal = std::vector<std::string>;

// A message to the host with the texts it points to, which live no longer than it does; empty for one that
// isn't worth an entry. The separator of notify texts shows as a bar.
inline std::string DescribeMessage(host::MessageNumber number, std::uintptr_t wParam, std::intptr_t lParam) {
    const auto text = [](auto address) {
        return ReplaceAll(reinterpret_cast<const char*>(address), "\x1f", "|");
    };
    switch (number) {
        case host::kHostQuery:
            return "query";
        case host::kOpenScreen:
            return "open " + std::to_string(wParam) + " " + text(lParam);
        case host::kOpenScreenLinked:
            return "open " + text(wParam) + " " + text(lParam);
        case host::kTagChanged:
            return "notify " + std::to_string(wParam) + " " + text(lParam);
        case host::kResultDoubleClicked:
            return "double click";
        default:
            return "";
    }
}

class JournalLinks : public RecordingLinkStore {
public:
    explicit JournalLinks(Journal& journal) : journal_(journal) {}

    std::string NVLink_GetLinkTagData(const std::string& mainKey, const std::string& tag,
                                      int* found) override {
        journal_.push_back("tag " + tag);
        return RecordingLinkStore::NVLink_GetLinkTagData(mainKey, tag, found);
    }
    void NVLink_SetLinkTagData(const CNVLinkInfoItem& item) override {
        journal_.push_back("set " + item.m_strMainKey + "/" + item.m_strTag);
        RecordingLinkStore::NVLink_SetLinkTagData(item);
    }
    void NVLink_SetMultiCodeLinkTagData(const std::string& title,
                                        const std::vector<std::string>& codes) override {
        journal_.push_back("publish " + ToUtf8(title) + " " + Join(codes, ","));
        RecordingLinkStore::NVLink_SetMultiCodeLinkTagData(title, codes);
    }
    std::uint8_t NVLink_GetNewMajorID(host::WindowHandle window) override {
        journal_.push_back("major id taken");
        return RecordingLinkStore::NVLink_GetNewMajorID(window);
    }
    void NVLink_DeleteMajorID(std::uint8_t id) override {
        journal_.push_back("major id " + std::to_string(id) + " given back");
        RecordingLinkStore::NVLink_DeleteMajorID(id);
    }

private:
    Journal& journal_;
};

}  // namespace jogeon::test
