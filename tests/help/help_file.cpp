#include "help/help_file.h"

#include <functional>
#include <stdexcept>

namespace varno::testing {

namespace {

// The file is a header (magic, directory, first free block, size: four int32) and internal files, each behind nine
// bytes of its own: reserved and used length (int32) and flags. Directory and |CONTEXT are B+ trees: a header of 38
// bytes (page size at 4, root page at 26, levels at 32), then pages; a leaf begins with unused bytes, entries, previous
// and next page (int16 each), an index page with unused bytes, entries and its leftmost page. Little-endian.
class Reader {
  public:
    explicit Reader(const std::string& bytes) : bytes_(bytes) {}

    std::int32_t number(std::size_t at, std::size_t size) const {
        std::uint32_t value = 0;
        for (std::size_t i = 0; i < size; ++i)
            value |= static_cast<std::uint32_t>(static_cast<unsigned char>(bytes_.at(at + i))) << (8 * i);
        return size == 2 ? static_cast<std::int16_t>(value) : static_cast<std::int32_t>(value);
    }
    std::size_t place(std::size_t at) const { return static_cast<std::size_t>(number(at, 4)); }

    std::string content(std::size_t file) const { return bytes_.substr(file + 9, place(file + 4)); }

    /// Calls `entry` with the place of every entry of a tree; it answers where the next one begins.
    void walk(std::size_t file, const std::function<std::size_t(std::size_t)>& entry) const {
        const std::size_t tree = file + 9;
        if (number(tree, 2) != 0x293B) throw std::runtime_error("no B+ tree");
        const auto pageSize = static_cast<std::size_t>(number(tree + 4, 2));
        std::int32_t page = number(tree + 26, 2);
        const auto start = [&] { return tree + 38 + static_cast<std::size_t>(page) * pageSize; };
        for (std::int32_t level = number(tree + 32, 2); level > 1; --level)
            page = number(start() + 4, 2);
        for (; page >= 0; page = number(start() + 6, 2)) {
            std::size_t at = start() + 8;
            for (std::int32_t left = number(start() + 2, 2); left > 0; --left)
                at = entry(at);
        }
    }

    std::size_t file(std::string_view wanted) const {
        std::size_t found = 0;
        walk(place(4), [&](std::size_t at) {
            const std::size_t end = bytes_.find('\0', at);
            if (std::string_view(bytes_).substr(at, end - at) == wanted) found = place(end + 1);
            return end + 5;
        });
        if (found == 0) throw std::runtime_error("no file " + std::string(wanted));
        return found;
    }

  private:
    const std::string& bytes_;
};

} // namespace

HelpFile readHelpFile(const std::string& bytes) {
    const Reader reader(bytes);
    if (reader.number(0, 4) != 0x00035F3F || reader.place(12) != bytes.size())
        throw std::runtime_error("not a whole WinHelp file");
    HelpFile file;
    reader.walk(reader.file("|CONTEXT"), [&](std::size_t at) {
        file.topics[reader.number(at, 4)] = reader.number(at + 4, 4);
        return at + 8;
    });
    const std::size_t map = reader.file("|CTXOMAP") + 9;
    for (std::int32_t i = 0; i < reader.number(map, 2); ++i) {
        const std::size_t at = map + 2 + 8 * static_cast<std::size_t>(i);
        file.contexts[reader.number(at, 4)] = reader.number(at + 4, 4);
    }
    file.system = reader.content(reader.file("|SYSTEM"));
    return file;
}

std::int32_t helpTopicHash(std::string_view name) {
    std::uint32_t hash = 0;
    for (const char c : name) {
        const auto letter = static_cast<std::uint32_t>(static_cast<unsigned char>(c));
        const std::uint32_t code = c == '_'   ? 13
                                   : c == '0' ? 10
                                   : c <= '9' ? letter - '0'
                                              : letter - 'a' + 17;
        hash = hash * 43 + code;
    }
    return static_cast<std::int32_t>(hash);
}

} // namespace varno::testing
