// Reads the parameter fields of one indicator from its section of S4BBoxDesc.dat.
//
// Missing tokens read as "" or 0. Numbers that no panel could use are brought into range here, so that
// nobody has to mind them later.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "screen/condition/index_field.h"

class CIniMemFile;

namespace jogeon {

// The market's sectors in the form of options: each code and name followed by `|`.
struct SectorOptions {
    std::string codes;
    std::string names;
};

// Each line is a three-byte code, one byte, and the name from byte 4.
SectorOptions MakeSectorOptions(const std::vector<std::string>& lines);

// The fields of `section` in file order behind the head record, which is always there.
std::unique_ptr<FieldArray> ReadFields(CIniMemFile& file, const std::string& section,
                                       const SectorOptions& sectors);

}  // namespace jogeon
