#include "screen/transactions/block_values.h"

#include <algorithm>
#include <optional>
#include <set>
#include <string>

namespace jogeon {

using namespace condition_block;

namespace {

// The fields that take part in a block: all that are stored, or those of the selector's option.
class ActiveFields {
public:
    explicit ActiveFields(CIndexInfo& condition) : condition_(condition) {
        const CIndexField* selector = FindFieldByRole(*condition.m_pFields, kRoleSelector);
        if (selector && condition.m_bHasSelector) ids_ = ActiveFieldIds(*selector);
    }

    // Calls `take(field)` for each of them in their order.
    template <typename Take>
    void ForEach(Take take) const {
        for (const auto& field : *condition_.m_pFields) {
            const bool active = !condition_.m_bHasSelector || ids_.contains(field->m_nId);
            if (field->m_bStored && active) take(*field);
        }
    }

private:
    CIndexInfo& condition_;
    std::set<int> ids_;
};

void SetValue(CIndexInfo& condition, CIndexField& field, std::string_view value) {
    field.SetValue(value);
    condition.m_RoleValues[field.m_nRole] = field.GetValueCode();
}

void Select(CIndexInfo& condition, long long option) {
    CIndexField* selector = FindFieldByRole(*condition.m_pFields, kRoleSelector);
    constexpr long long kMostOptions = 1000;  // the number of an indicator has three digits
    const bool possible = option >= 0 && option < kMostOptions;
    if (selector) selector->m_nSelected = possible ? static_cast<int>(option) : -1;
}

bool HasSlot(char family, int role) {
    const auto layout = LayoutOf(family);
    return std::any_of(layout.begin(), layout.end(), [&](const RoleSlot& slot) { return slot.role == role; });
}

void TakeSlots(const DecodedBlock& decoded, CIndexInfo& condition) {
    ActiveFields(condition).ForEach([&](CIndexField& field) {
        if (!HasSlot(decoded.family, field.m_nRole)) return;
        const auto value = decoded.roles.find(field.m_nRole);
        SetValue(condition, field, value == decoded.roles.end() ? std::string() : value->second);
    });
}

// Where the two values of an 'F' block stand, by its sub-type. A role without a place repeats the text that
// was decoded before it.
struct FilterPlaces {
    char subType;
    std::optional<ByteField> role60;
    std::optional<ByteField> role61;
};
constexpr FilterPlaces kFilterPlaces[] = {{'1', kFilterFirst, std::nullopt},
                                          {'2', kFilterSecond, kFilterSecond},
                                          {'3', kFilterFirst, kFilterSecond},
                                          {'4', kFilterFirst, std::nullopt},
                                          {'5', kFilterSecond, kFilterSecond}};

std::optional<ByteField> FilterPlace(char subType, int role) {
    if (role == 20) return kFilterOption;
    for (const FilterPlaces& places : kFilterPlaces) {
        if (places.subType == subType) return role == 60 ? places.role60 : places.role61;
    }
    return std::nullopt;
}

void TakeFilter(std::string_view block, CIndexInfo& condition) {
    const char subType = block[kFilterSubType.offset];
    std::string last;
    ActiveFields(condition).ForEach([&](CIndexField& field) {
        const int role = field.m_nRole;
        if (role == 50 && (subType == '1' || subType == '2')) {
            last = subType;
        } else if (role == 20 || role == 60 || role == 61) {
            if (const auto place = FilterPlace(subType, role)) last = Trim(Read(block, *place));
        } else {
            return;
        }
        SetValue(condition, field, last);
    });
}

}  // namespace

void TakeBlockValues(std::string_view block, const DecodedBlock& decoded, CIndexInfo& condition) {
    if (!condition.m_pFields) return;
    const bool filter = decoded.family == 'F';
    condition.m_RoleValues.clear();
    if (filter) {
        Select(condition, decoded.mode);
        TakeFilter(block, condition);
    } else if (!LayoutOf(decoded.family).empty()) {
        if (condition.m_bHasSelector) Select(condition, decoded.number - 1LL * condition.m_nIndexNo);
        TakeSlots(decoded, condition);
    }
}

}  // namespace jogeon
