// A temporary folder, CP949 text files in it, and a small catalogue for tests of the condition records.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>

#include "screen/text/cp949.h"

namespace jogeon::test {

// A folder of its own, removed with everything in it when it goes out of scope.
class TempFolder {
public:
    TempFolder()
        : path_(std::filesystem::temp_directory_path() /
                ("jogeon" + std::to_string(std::random_device()()))) {
        std::filesystem::create_directories(path_);
    }
    ~TempFolder() {
        std::error_code error;
        std::filesystem::remove_all(path_, error);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    const std::filesystem::path& Path() const { return path_; }

private:
    std::filesystem::path path_;
};

inline void WriteBytes(const std::filesystem::path& file, std::string_view bytes) {
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << bytes;
}

inline void WriteText(const std::filesystem::path& file, std::string_view utf8) {
    WriteBytes(file, ToCp949(utf8));
}

inline std::string ReadBytes(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    return std::string((std::istreambuf_iterator<char>(in)), {});
}

// Two roots. 0101010008 is a plain indicator with a stored period and bars-ago, 0401020008 has a selector
// with two variants, 0601010008 a pattern; 0100000000 is a group.
inline constexpr std::string_view kTreeText = R"([기술적지표]
0100000000=이동평균;0;C
0101010008=주가이평돌파;11;C
0401020008=거래량;20;P1
0601010008=적삼병;31;S
[시세]
0801010008=순위;40;C
)";
inline constexpr std::string_view kFieldText = R"([0101010008]
Head=;;;[%s] %s일 이평 %s;1^2^3;
1=40;1;40;1;10;30;5;60;0;;;단순|지수;1|2;
2=31;1;60;20;10;30;70;100;1;1;240;
3=30;1;30;0;10;30;110;140;0;;;
4=10;0;0;일 이평;40;60;5;60;0;;;
[0401020008]
Head=;;;%s주 이상|%s배 이상;2|3;
1=60;0;10;0;0;20;0;100;0;;;수량|배수;0|1;2^4|3^4;
2=30;1;60;1000;20;40;0;100;0;;;
3=30;1;61;2;20;40;0;100;0;;;
4=30;1;30;1;40;60;0;100;0;;;
[0601010008]
Head=;;;적삼병;;
)";

inline void WriteCatalogue(const std::filesystem::path& system, std::string_view tree = kTreeText,
                           std::string_view fields = kFieldText) {
    WriteText(system / "S4TreeList.dat", tree);
    WriteText(system / "S4BBoxDesc.dat", fields);
}

}  // namespace jogeon::test
