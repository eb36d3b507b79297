#include "screen/files/ini_mem_file.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <optional>
#include <system_error>
#include <utility>

#include "screen/files/atomic_file.h"

namespace {

bool IsSpace(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}

std::string_view Trimmed(std::string_view text) {
    while (!text.empty() && IsSpace(text.front())) text.remove_prefix(1);
    while (!text.empty() && IsSpace(text.back())) text.remove_suffix(1);
    return text;
}

// The next line of `text`, which is cut off it. Line ends of any kind and number count as one.
std::optional<std::string_view> TakeLine(std::string_view& text) {
    text.remove_prefix(std::min(text.find_first_not_of("\r\n"), text.size()));
    if (text.empty()) return std::nullopt;
    const std::string_view line = text.substr(0, text.find_first_of("\r\n"));
    text.remove_prefix(line.size());
    return line;
}

// Far more than any of these files holds; a larger one is damage, and must not fill the memory.
constexpr std::uintmax_t kMostBytes = 64u << 20;

std::optional<std::string> ReadWholeFile(const std::string& path) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error)) return std::nullopt;
    const std::uintmax_t size = std::filesystem::file_size(path, error);
    std::ifstream file(std::filesystem::path(path), std::ios::binary);
    if (error || !file || size > kMostBytes) return std::nullopt;
    std::string bytes(static_cast<std::size_t>(size), '\0');
    if (!file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()))) {
        return std::nullopt;
    }
    return bytes;
}

}  // namespace

CMemFile::CMemFile(std::string bytes) : m_Bytes(std::move(bytes)) {}

void CMemFile::Write(std::string_view bytes) {
    m_Bytes.replace(m_nPosition, std::min(bytes.size(), m_Bytes.size() - m_nPosition), bytes);
    m_nPosition += bytes.size();
}

void CMemFile::Seek(std::size_t position) {
    m_nPosition = std::min(position, m_Bytes.size());
}
std::size_t CMemFile::GetPosition() const {
    return m_nPosition;
}
std::size_t CMemFile::GetLength() const {
    return m_Bytes.size();
}
const std::string& CMemFile::Bytes() const {
    return m_Bytes;
}

std::string CMemFile::Detach() {
    m_nPosition = 0;
    return std::exchange(m_Bytes, {});
}

CIniMemFile::CIniMemFile() = default;
CIniMemFile::CIniMemFile(int bKeyOrder) : m_bKeyOrder(bKeyOrder) {}
CIniMemFile::CIniMemFile(const std::string& path, int bKeyOrder) {
    LoadIniFile(path, bKeyOrder);
}

CIniMemFile::~CIniMemFile() {
    if (m_bDirty) SaveIniFile();
}

// --- Loading

int CIniMemFile::LoadIniFile(const std::string& path, int bKeyOrder) {
    m_strPath = path;
    m_bKeyOrder = bKeyOrder;
    const std::optional<std::string> bytes = ReadWholeFile(path);
    if (!bytes) return 0;
    return bKeyOrder ? ReadContentsKeyOrder(bytes->c_str()) : ReadContents(bytes->c_str());
}

int CIniMemFile::LoadIniFile(CMemFile* file, int bKeyOrder) {
    m_strPath.clear();
    m_bKeyOrder = bKeyOrder;
    const std::string bytes = file->Detach();
    return bKeyOrder ? ReadContentsKeyOrder(bytes.c_str()) : ReadContents(bytes.c_str());
}

int CIniMemFile::ReadContents(const char* text) {
    return Parse(text, false);
}
int CIniMemFile::ReadContentsKeyOrder(const char* text) {
    return Parse(text, true);
}

int CIniMemFile::Parse(std::string_view text, bool keepOrder) {
    RemoveContents();
    Section* current = nullptr;
    while (const std::optional<std::string_view> whole = TakeLine(text)) {
        const std::string_view line = Trimmed(*whole);
        if (line.empty() || line.front() == ';') continue;
        if (line.front() != '[') {
            if (current) ParseKeyLine(*current, line, keepOrder);
        } else if (line.back() != ']') {
            current = nullptr;
        } else {
            // A second section of the same name takes the place of the first, and is written twice.
            const std::string& name = m_SectionNames.emplace_back(line.substr(1, line.size() - 2));
            current = &(m_Sections[name] = Section());
        }
    }
    return m_SectionNames.empty() ? 0 : 1;
}

void CIniMemFile::ParseKeyLine(Section& section, std::string_view line, bool keepOrder) {
    const std::size_t equals = line.find('=');
    if (equals == 0 || equals == std::string_view::npos) return;
    const std::string key(line.substr(0, equals));
    section.m_Values[key] = line.substr(equals + 1);
    if (keepOrder) section.m_Keys.push_back(key);
}

void CIniMemFile::RemoveContents() {
    m_Sections.clear();
    m_SectionNames.clear();
}

// --- Saving

int CIniMemFile::SaveIniFile() {
    if (m_bKeyOrder) return SaveIniFileKeyOrder();
    if (!m_bDirty || m_strPath.empty()) return 1;
    m_bDirty = 0;
    return WriteOrRemove();
}

// In key order an object with no section removes its file even if it wasn't changed.
int CIniMemFile::SaveIniFileKeyOrder() {
    if (m_strPath.empty()) return 1;
    if (!m_bDirty && !m_Sections.empty()) return 1;
    m_bDirty = 0;
    return WriteOrRemove();
}

int CIniMemFile::SaveIniFile(const std::string& path) {
    if (path.empty()) return 0;
    m_strPath = path;
    return m_bKeyOrder ? SaveIniFileKeyOrder() : WriteOrRemove();
}

int CIniMemFile::WriteOrRemove() const {
    if (!m_Sections.empty()) return jogeon::WriteFileAtomically(m_strPath, Compose()) ? 1 : 0;
    std::error_code error;
    std::filesystem::remove(m_strPath, error);
    return 1;
}

std::string CIniMemFile::Compose() const {
    std::string text;
    for (const std::string& name : m_SectionNames) {
        text.append("[").append(name).append("]\r\n");
        if (const Section* section = FindSection(name)) {
            std::vector<std::string> keys;
            AppendKeys(*section, keys);
            for (const std::string& key : keys) {
                const std::string* value = FindValue(name, key);
                text.append(key).append("=").append(value ? *value : std::string()).append("\r\n");
            }
        }
        text.append("\r\n");
    }
    return text;
}

int CIniMemFile::GetMemFile(CMemFile* file) const {
    std::string text;
    for (const std::string& name : m_SectionNames) {
        text.append("[").append(name).append("]\r\n");
        const Section* section = FindSection(name);
        if (!section) continue;
        for (const auto& [key, value] : section->m_Values) {
            text.append(key).append("=").append(value).append("\r\n");
        }
    }
    file->Write(text);
    return static_cast<int>(file->GetLength());
}
