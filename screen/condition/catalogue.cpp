#include "screen/condition/catalogue.h"

#include "screen/condition/catalogue_fields.h"
#include "screen/condition/token_list.h"
#include "screen/files/ini_mem_file.h"
#include "screen/text/bytes.h"

namespace jogeon {
namespace {

// A tree key: two digits of category among the six of the packet's key, then four of the indicator's id.
constexpr std::size_t kCategoryWidth = 2;
constexpr std::size_t kIdOffset = 6;
constexpr std::size_t kIdWidth = 4;
constexpr int kPatternCategory = 6;

bool IsIndicator(std::string_view key) {
    return Atoi(Field(key, kIdOffset, kIdWidth)) != 0;
}

void SetImages(CatalogueNode& node, int image) {
    node.image = image;
    node.selectedImage = image + 1;
}

// Ties a record to its node: an indicator can be picked there, a group only opened.
void Attach(CIndexInfo& index, CatalogueNode& node) {
    const bool indicator = IsIndicator(index.m_strKey);
    index.m_hTreeItem = &node;
    index.m_nKind = indicator ? kKindBlackBox : kKindGroup;
    index.m_bLeaf = indicator ? 1 : 0;
    node.data = indicator ? &index : nullptr;
    const bool pattern = CategoryOfKey(index.m_strKey) == kPatternCategory;
    SetImages(node, !indicator ? kImageGroup : pattern ? kImagePatternIndicator : kImageIndicator);
}

}  // namespace

int CategoryOfKey(std::string_view key) {
    return Atoi(Field(key, 0, kCategoryWidth));
}

void Catalogue::Clear() {
    m_IndexByKey.clear();
    m_FieldsByKey.clear();
    m_Indexes.clear();
    m_Roots.clear();
    m_Nodes.clear();
}

void Catalogue::Load(const std::filesystem::path& systemFolder, const std::vector<std::string>& sectorLines) {
    Clear();
    CIniMemFile fields((systemFolder / "S4BBoxDesc.dat").string(), 1);
    LoadFields(fields, sectorLines);
    CIniMemFile tree((systemFolder / "S4TreeList.dat").string(), 1);
    LoadTree(tree);
}

void Catalogue::LoadFields(CIniMemFile& file, const std::vector<std::string>& sectorLines) {
    const SectorOptions sectors = MakeSectorOptions(sectorLines);
    std::vector<std::string> sections;
    file.GetSections(sections);
    for (const std::string& section : sections) {
        auto [entry, isNew] = m_FieldsByKey.try_emplace(section);
        if (isNew) entry->second = ReadFields(file, section, sectors);  // a repeated name has the same keys
    }
}

void Catalogue::LoadTree(CIniMemFile& file) {
    std::vector<std::string> sections;
    file.GetSections(sections);
    KeyMap<bool> seen;  // a repeated name would bring the same nodes again, and so grow without limit
    for (const std::string& section : sections) {
        if (seen.try_emplace(section, true).second) LoadTreeSection(file, section);
    }
}

void Catalogue::LoadTreeSection(CIniMemFile& file, const std::string& section) {
    CatalogueNode* current = AddNode(nullptr, section);
    std::vector<std::string> keys;
    file.GetKeys(section, keys);
    for (const std::string& key : keys) {
        const CTokenList tokens(file.GetString(section, key, ""), ';');
        auto index = std::make_unique<CIndexInfo>();
        index->m_strKey = key;
        index->m_strName = index->m_strTitle = tokens.GetToken(0);
        index->m_nIndexNo = tokens.GetInt(1);
        if (const FieldArray* fields = FindFieldsByKey(key)) {
            index->SetTemplates(fields->front()->m_strItems, fields->front()->m_strCodes);
        }
        current = Place(current, tokens.GetToken(2), index->m_strName);
        Attach(*index, *current);
        m_IndexByKey.try_emplace(key, index.get());
        m_Indexes.push_back(std::move(index));
    }
}

// The node of the next record: a new child (C) or sibling (S) of `current`, a new sibling of its d-th
// ancestor (Pd), or `current` itself. What climbs above the roots becomes a root.
CatalogueNode* Catalogue::Place(CatalogueNode* current, std::string_view position, std::string_view text) {
    const char kind = position.empty() ? '\0' : position.front();
    if (kind == 'C') return AddNode(current, text);
    if (kind != 'S' && kind != 'P') return current;
    const char digit = kind == 'P' && position.size() > 1 ? position[1] : '0';
    int steps = digit >= '0' && digit <= '9' ? digit - '0' : 0;
    CatalogueNode* parent = current->parent;
    while (parent && steps-- > 0) parent = parent->parent;
    return AddNode(parent, text);
}

CatalogueNode* Catalogue::AddNode(CatalogueNode* parent, std::string_view text) {
    CatalogueNode& node = m_Nodes.emplace_back();
    node.text = text;
    node.parent = parent;
    (parent ? parent->children : m_Roots).push_back(&node);
    return &node;
}

CIndexInfo* Catalogue::FindIndexByKey(std::string_view key) const {
    const auto found = m_IndexByKey.find(key);
    return found == m_IndexByKey.end() ? nullptr : found->second;
}

const FieldArray* Catalogue::FindFieldsByKey(std::string_view key) const {
    const auto found = m_FieldsByKey.find(key);
    return found == m_FieldsByKey.end() ? nullptr : found->second.get();
}

std::unique_ptr<CIndexInfo> Catalogue::MakeCondition(std::string_view key) const {
    const CIndexInfo* index = FindIndexByKey(key);
    if (!index) return nullptr;
    auto condition = std::make_unique<CIndexInfo>(*index);
    condition->CopyFields(FindFieldsByKey(key));
    return condition;
}

}  // namespace jogeon
