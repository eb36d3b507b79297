// Little-endian numbers and list containers inside a transport block, where offsets stand for pointers.
//
// A container is 16 bytes: an allocator byte, three zero bytes, then begin, end and end of storage.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace jogeon {

inline constexpr std::size_t kListContainerSize = 16;

// Writes the low `width` bytes of `value` at `offset`, the lowest first. `block` reaches that far.
void PutLittleEndian(std::string& block, std::size_t offset, std::uint32_t value, std::size_t width);

// The number of `width` bytes, at most four, at `offset`; none beyond the end of `block`.
std::optional<std::uint32_t> GetLittleEndian(std::string_view block, std::size_t offset, std::size_t width);

// Appends `elements` to `block` and makes the container at `container` point at them.
void AppendList(std::string& block, std::size_t container, std::string_view elements);

// The elements of the container at `container`, empty for an empty list. None when its offsets don't bound a
// part of `block`.
std::optional<std::string_view> ListElements(std::string_view block, std::size_t container);

// The `length` bytes at `offset`; none unless all of them are inside `block`.
std::optional<std::string_view> Inside(std::string_view block, std::size_t offset, std::size_t length);

}  // namespace jogeon
