// The indicators that can be searched on, as two files of the home's System folder describe them:
// S4TreeList.dat the tree with names and numbers, S4BBoxDesc.dat the parameters of each indicator.
//
// Owns the tree's nodes, its CIndexInfo records and the field arrays; all pointers handed out live until the
// next Load. A missing or malformed file gives an empty or partial catalogue and no message.
#pragma once

#include <deque>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "screen/condition/index_info.h"

class CIniMemFile;

namespace jogeon {

// Positions in the strip of tree pictures: the one shown is for a node at rest, the next for a selected one.
inline constexpr int kImageGroup = 0;
inline constexpr int kImageUserRoot = 2;
inline constexpr int kImageVendorRoot = 4;
inline constexpr int kImageSavedSet = 8;
inline constexpr int kImageIndicator = 10;
inline constexpr int kImagePatternIndicator = 12;  // category 6

// The first two digits of a tree key.
int CategoryOfKey(std::string_view key);

struct CatalogueNode {
    std::string text;
    int image = kImageGroup;
    int selectedImage = kImageGroup + 1;
    CIndexInfo* data = nullptr;  // null for roots and group nodes
    CatalogueNode* parent = nullptr;
    std::vector<CatalogueNode*> children;
};

class Catalogue {
public:
    Catalogue() = default;
    Catalogue(const Catalogue&) = delete;
    Catalogue& operator=(const Catalogue&) = delete;

    // Replaces everything by what the two files say. `sectorLines` are the market's sectors, each a
    // three-byte code, one byte, and the name from byte 4; they join the options of sector lists.
    void Load(const std::filesystem::path& systemFolder, const std::vector<std::string>& sectorLines);

    // The roots in file order; the roots for saved sets are the tree pane's.
    const std::vector<CatalogueNode*>& Roots() const { return m_Roots; }

    // All records in file order, those of group nodes too.
    const std::vector<std::unique_ptr<CIndexInfo>>& Indexes() const { return m_Indexes; }

    // The first record with this key; null if none.
    CIndexInfo* FindIndexByKey(std::string_view key) const;

    // The fields of the indicator with this key, head record first; null if none.
    const FieldArray* FindFieldsByKey(std::string_view key) const;

    // A new condition on this indicator with its own fields at their defaults; null for an unknown key.
    // Without a field array in the catalogue it has none either.
    std::unique_ptr<CIndexInfo> MakeCondition(std::string_view key) const;

private:
    struct KeyHash {
        using is_transparent = void;
        std::size_t operator()(std::string_view key) const { return std::hash<std::string_view>()(key); }
    };
    template <typename T>
    using KeyMap = std::unordered_map<std::string, T, KeyHash, std::equal_to<>>;

    void Clear();
    void LoadFields(CIniMemFile& file, const std::vector<std::string>& sectorLines);
    void LoadTree(CIniMemFile& file);
    void LoadTreeSection(CIniMemFile& file, const std::string& section);
    CatalogueNode* AddNode(CatalogueNode* parent, std::string_view text);
    CatalogueNode* Place(CatalogueNode* current, std::string_view position, std::string_view text);

    std::deque<CatalogueNode> m_Nodes;  // flat, so that a deep tree needs no deep recursion to be freed
    std::vector<CatalogueNode*> m_Roots;
    std::vector<std::unique_ptr<CIndexInfo>> m_Indexes;
    KeyMap<CIndexInfo*> m_IndexByKey;
    KeyMap<std::unique_ptr<FieldArray>> m_FieldsByKey;
};

}  // namespace jogeon
