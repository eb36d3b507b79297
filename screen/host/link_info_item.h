// One entry of the host's store of shared tags; the module exports the class for other screens.
#pragma once

#include <string>

#if defined(_WIN32)
#define JOGEON_LINK_ITEM_API
#else
#define JOGEON_LINK_ITEM_API __attribute__((visibility("default")))
#endif

// All three are CP949 bytes.
class JOGEON_LINK_ITEM_API CNVLinkInfoItem {
public:
    CNVLinkInfoItem() = default;
    CNVLinkInfoItem(const std::string& mainKey, const std::string& tag, const std::string& value);

    std::string m_strMainKey;
    std::string m_strTag;
    std::string m_strValue;
};
