#include "screen/condition/catalogue_fields.h"

#include <algorithm>
#include <cmath>

#include "screen/condition/token_list.h"
#include "screen/files/ini_mem_file.h"
#include "screen/text/bytes.h"

namespace jogeon {
namespace {

// Tokens of the head record.
constexpr int kHeadFormats = 3;
constexpr int kHeadArguments = 4;

// Tokens of a field, in their order.
constexpr int kType = 0;
constexpr int kStored = 1;
constexpr int kRole = 2;
constexpr int kDefault = 3;
constexpr int kTop = 4;
constexpr int kBottom = 5;
constexpr int kLeft = 6;
constexpr int kRight = 7;
constexpr int kRange = 8;
constexpr int kMinimum = 9;
constexpr int kMaximum = 10;
constexpr int kItems = 11;
constexpr int kCodes = 12;
constexpr int kVariantFields = 13;

// Window coordinates and control ids have 16 bits; a radio button's id is 100 times its field's.
constexpr int kMostPixels = 32767;
constexpr int kMostFieldId = 32767;

// Bytes of a line of the sector list.
constexpr std::size_t kSectorCodeWidth = 3;
constexpr std::size_t kSectorNameOffset = 4;

bool IsSet(const std::string& token) {
    return !token.empty() && token.front() == '1';
}

int Pixels(const CTokenList& tokens, int token) {
    return std::clamp(tokens.GetInt(token), -kMostPixels, kMostPixels);
}

double Bound(const CTokenList& tokens, int token) {
    const double bound = Atof(tokens.GetToken(token));
    return std::isfinite(bound) ? bound : 0;
}

void ReadOptions(CIndexField& field, const CTokenList& tokens, const SectorOptions& sectors) {
    switch (field.m_nType) {
        case kFieldList:
        case kFieldFreeCombo:
        case kFieldRadios:
        case kFieldRadioRows:
            field.m_strItems = tokens.GetToken(kItems);
            field.m_strCodes = tokens.GetToken(kCodes);
            if (field.m_nRole == kRoleSelector) field.m_strVariantFields = tokens.GetToken(kVariantFields);
            break;
        case kFieldSectorList:
            field.m_strItems = tokens.GetToken(kItems) + sectors.names;
            field.m_strCodes = tokens.GetToken(kCodes) + sectors.codes;
            break;
        case kFieldPicture:
            field.m_strItems = tokens.GetToken(kItems);
            break;
        default:
            break;
    }
}

std::unique_ptr<CIndexField> ReadHead(const std::string& line) {
    const CTokenList tokens(line, ';');
    auto head = std::make_unique<CIndexField>();
    head->m_strItems = tokens.GetToken(kHeadFormats);
    head->m_strCodes = tokens.GetToken(kHeadArguments);
    return head;
}

std::unique_ptr<CIndexField> ReadField(const std::string& id, const std::string& line,
                                       const SectorOptions& sectors) {
    const CTokenList tokens(line, ';');
    auto field = std::make_unique<CIndexField>();
    field->m_nId = std::clamp(Atoi(id), 0, kMostFieldId);
    field->m_nType = tokens.GetInt(kType);
    field->m_bStored = IsSet(tokens.GetToken(kStored)) ? 1 : 0;
    field->m_nRole = tokens.GetInt(kRole);
    field->m_strValue = tokens.GetToken(kDefault);
    field->m_rcInit = {Pixels(tokens, kLeft), Pixels(tokens, kTop), Pixels(tokens, kRight),
                       Pixels(tokens, kBottom)};
    field->m_rcCur = field->m_rcInit;
    if (IsSet(tokens.GetToken(kRange))) {
        field->m_bRange = 1;
        field->m_dMin = Bound(tokens, kMinimum);
        field->m_dMax = Bound(tokens, kMaximum);
    }
    ReadOptions(*field, tokens, sectors);
    return field;
}

}  // namespace

SectorOptions MakeSectorOptions(const std::vector<std::string>& lines) {
    SectorOptions options;
    for (const std::string& line : lines) {
        options.codes.append(Field(line, 0, kSectorCodeWidth)).append(1, '|');
        options.names.append(Field(line, kSectorNameOffset, line.size())).append(1, '|');
    }
    return options;
}

std::unique_ptr<FieldArray> ReadFields(CIniMemFile& file, const std::string& section,
                                       const SectorOptions& sectors) {
    std::vector<std::string> keys;
    file.GetKeys(section, keys);
    auto fields = std::make_unique<FieldArray>();
    for (const std::string& key : keys) {
        const std::string line = file.GetString(section, key, "");
        if (fields->empty()) {
            fields->push_back(ReadHead(line));
        } else if (!line.empty()) {
            fields->push_back(ReadField(key, line, sectors));
        }
    }
    if (fields->empty()) fields->push_back(ReadHead({}));
    return fields;
}

}  // namespace jogeon
