// Shows and edits a file of sections and keys from the command line.
//
//   ini_edit FILE                        every value, one a line: [section] key=value
//   ini_edit FILE SECTION KEY            one value
//   ini_edit FILE SECTION KEY VALUE      sets it; an empty VALUE deletes the key
//
// Editing rewrites the file in its plain form: its comments go.
#include <exception>
#include <filesystem>
#include <iostream>
#include <string>
#include <system_error>
#include <vector>

#include <ini_mem_file.h>

namespace {

int Fail(const std::string& message) {
    std::cerr << "ini_edit: " << message << '\n';
    return 1;
}

int Show(const CIniMemFile& file) {
    std::vector<std::string> sections;
    file.GetSections(sections);
    for (const std::string& section : sections) {
        std::vector<std::string> keys;
        file.GetKeys(section, keys);
        for (const std::string& key : keys) {
            std::cout << '[' << section << "] " << key << '=' << file.GetString(section, key, "") << '\n';
        }
    }
    return 0;
}

int ShowOne(const CIniMemFile& file, const std::string& section, const std::string& key) {
    const std::string value = file.GetString(section, key, "");
    if (value.empty()) return Fail("[" + section + "] has no value " + key);
    std::cout << value << '\n';
    return 0;
}

int Set(CIniMemFile& file, const std::string& section, const std::string& key, const std::string& value) {
    if ((section + key + value).find_first_of("\r\n") != std::string::npos) {
        return Fail("a name or value can't hold a line end");
    }
    if (key.empty() || key.find('=') != std::string::npos) return Fail("a key is not empty and has no '='");
    if (value.empty()) {
        file.DeleteKey(section, key);
    } else {
        file.WriteString(section, key, value);
    }
    return file.SaveIniFile() ? 0 : Fail("can't write the file; it is as it was");
}

int Run(const std::vector<std::string>& args) {
    if (args.empty() || args.size() == 2 || args.size() > 4) {
        return Fail("usage: ini_edit FILE [SECTION KEY [VALUE]]");
    }
    CIniMemFile file;
    const bool loaded = file.LoadIniFile(args[0], 1) != 0;
    std::error_code error;
    const bool isNew = args.size() == 4 && !std::filesystem::exists(args[0], error) && !error;
    if (!loaded && !isNew) return Fail(args[0] + ": can't be read, or has no [section]");
    if (args.size() == 1) return Show(file);
    if (args.size() == 3) return ShowOne(file, args[1], args[2]);
    return Set(file, args[1], args[2], args[3]);
}

}  // namespace

int main(int argc, char** argv) {
    try {
        return Run(std::vector<std::string>(argv + 1, argv + argc));
    } catch (const std::exception& error) {
        return Fail(error.what());
    }
}
