#include "screen/host/link_info_item.h"

CNVLinkInfoItem::CNVLinkInfoItem(const std::string& mainKey, const std::string& tag, const std::string& value)
    : m_strMainKey(mainKey), m_strTag(tag), m_strValue(value) {}
