// Texts for the cells of a grid, which hold CP949 bytes.
//
// Relies on iconv. A character that CP949 doesn't have becomes '?'.
#pragma once

#include <string>
#include <string_view>

std::string Cp949(std::string_view utf8);
