// A whole file of sections, keys and values in memory: read in one piece, changed there, written in one
// piece.
//
// Relies on the standard library alone, so that other modules can link it. Text is bytes and nothing here
// decodes it; lookups are exact. Nothing throws or asks: a bad line is dropped, a failed load or save says 0,
// and a save leaves either the old file or the whole new one. An object that was changed saves itself when
// it is destroyed. Each object belongs to one thread.
#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#if !defined(_WIN32)
#define JOGEON_INI_API __attribute__((visibility("default")))
#elif defined(JOGEON_INI_EXPORTS)
#define JOGEON_INI_API __declspec(dllexport)
#else
#define JOGEON_INI_API
#endif

// A file in memory: bytes that grow as they are written, and a position in them.
class JOGEON_INI_API CMemFile {
public:
    CMemFile() = default;
    explicit CMemFile(std::string bytes);  // the position is the start

    // Puts the bytes at the position, over what stands there and beyond the end, and moves the position.
    void Write(std::string_view bytes);

    // A position beyond the end is the end.
    void Seek(std::size_t position);
    std::size_t GetPosition() const;
    std::size_t GetLength() const;
    const std::string& Bytes() const;

    // Gives the bytes up to the caller and leaves this file empty.
    std::string Detach();

private:
    std::string m_Bytes;
    std::size_t m_nPosition = 0;
};

class JOGEON_INI_API CIniMemFile {
public:
    // `bKeyOrder` nonzero keeps the keys of each section in the order of their arrival.
    CIniMemFile();
    explicit CIniMemFile(int bKeyOrder);
    CIniMemFile(const std::string& path, int bKeyOrder);  // loads at once; a failed load goes unnoticed

    // Saves first if the contents were changed.
    virtual ~CIniMemFile();

    CIniMemFile(const CIniMemFile&) = delete;
    CIniMemFile& operator=(const CIniMemFile&) = delete;

    // Replace the contents; 1 if a section was found. A file that can't be read or has more than 64 MiB gives
    // 0 and leaves the old contents, but the path and the flag are taken in any case. A memory file is left
    // empty.
    int LoadIniFile(const std::string& path, int bKeyOrder);
    int LoadIniFile(CMemFile* file, int bKeyOrder);

    // Writes what was changed to the file it was loaded from; with no section left the file is removed.
    // 0 if the file can't be written: it then has its old contents, and the object no longer counts as
    // changed.
    int SaveIniFile();

    // Goes on with this path; 0 if it's empty. Without key order it's written whether changed or not.
    int SaveIniFile(const std::string& path);

    // Writes the text, without the empty lines between sections, at the file's position. Returns its length.
    int GetMemFile(CMemFile* file) const;

    // A missing key and an empty value both read as the default. Numbers are a value's leading digits.
    unsigned int GetInt(std::string_view section, std::string_view key, int defaultValue) const;
    double GetDouble(std::string_view section, std::string_view key, double defaultValue) const;
    std::string GetString(std::string_view section, std::string_view key,
                          std::string_view defaultValue) const;
    void GetString(std::string_view section, std::string_view key, std::string_view defaultValue,
                   std::string& out) const;

    // Set a value, making the section and key where they are missing; a double keeps six digits. A text ends
    // at its first NUL and must hold no line end, which no line of the file can carry.
    void WriteInt(std::string_view section, std::string_view key, int value);
    void WriteDouble(std::string_view section, std::string_view key, double value);
    void WriteString(std::string_view section, std::string_view key, std::string_view value);

    // The same for a value that differs from the default. One that equals it isn't written, so that a key
    // which is there keeps its old value; the object counts as changed either way.
    void WriteInt(std::string_view section, std::string_view key, int value, int defaultValue);
    void WriteDouble(std::string_view section, std::string_view key, double value, double defaultValue);
    void WriteString(std::string_view section, std::string_view key, std::string_view value,
                     std::string_view defaultValue);

    // Section names in order of creation, repeated where the file repeats them; keys in their order or, with
    // no order kept, sorted. GetAllKeys goes through the sections by name.
    void GetSections(std::vector<std::string>& out) const;
    void GetKeys(std::string_view section, std::vector<std::string>& out) const;
    void GetSortedKeys(std::string_view section, std::vector<std::string>& out) const;
    void GetAllKeys(std::vector<std::string>& out) const;

    void DeleteSection(std::string_view section);
    void ClearSection(std::string_view section);  // its header stays
    void DeleteKey(std::string_view section, std::string_view key);
    void DeleteAllSections();

    // Sorts the sections by name for the next save; "Version" stays first if it is.
    void SortSections();

protected:
    // Replace the contents by the text up to its NUL; 1 if a section was found.
    int ReadContents(const char* text);
    int ReadContentsKeyOrder(const char* text);
    int SaveIniFileKeyOrder();
    void RemoveContents();

    // Index of the first of `keys` that equals `key`, or -1.
    int FindKeyOrder(const std::vector<std::string>* keys, std::string_view key) const;

private:
    struct Section {
        std::map<std::string, std::string, std::less<>> m_Values;
        std::vector<std::string> m_Keys;  // in order of arrival; filled only when key order is kept
    };

    const std::string* FindValue(std::string_view section, std::string_view key) const;
    Section* FindSection(std::string_view section);
    const Section* FindSection(std::string_view section) const;
    int Parse(std::string_view text, bool keepOrder);
    void ParseKeyLine(Section& section, std::string_view line, bool keepOrder);
    void AppendKeys(const Section& section, std::vector<std::string>& out) const;
    std::string Compose() const;
    int WriteOrRemove() const;

    std::string m_strPath;
    int m_bDirty = 0;
    std::map<std::string, Section, std::less<>> m_Sections;
    std::vector<std::string> m_SectionNames;
    int m_bKeyOrder = 1;
};
