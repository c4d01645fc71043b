#include "base/sequential_text.h"

#include <gtest/gtest.h>

#include <vector>

#include "support/memory_files.h"

namespace varno {

namespace {

using testing::errorOf;

std::vector<Bytes> fieldsOf(const Bytes& text) {
    SequentialText reader(text);
    std::vector<Bytes> fields;
    while (!reader.atEnd())
        fields.emplace_back(reader.readField());
    return fields;
}

std::vector<Bytes> wholeLinesOf(const Bytes& text) {
    SequentialText reader(text);
    std::vector<Bytes> lines;
    while (!reader.atEnd())
        lines.emplace_back(reader.readLine());
    return lines;
}

TEST(SequentialText, SplitsAtCommasAndLineEnds) {
    const struct {
        Bytes text;
        std::vector<Bytes> fields;
    } rows[] = {
        {"", {}},
        {"a", {"a"}},
        {"a\r\nb\r\n", {"a", "b"}},
        {"a\nb\n", {"a", "b"}},
        {"a\rb\r", {"a", "b"}},
        {"a\r\nb\nc\rd", {"a", "b", "c", "d"}},
        {"a,b\r\nc\r\n", {"a", "b", "c"}},
        {"a,,b\r\n", {"a", "", "b"}},
        {"a,\r\nb\r\n", {"a", "", "b"}},
        {",\r\n", {"", ""}},
        {"a,", {"a"}},
        // An empty line is an empty field
        {"\r\n\r\nb", {"", "", "b"}},
        {"\n\r", {"", ""}},
        {"\r\r\n", {"", ""}},
        // Leading blanks are skipped, trailing ones belong to the field
        {"   a  \r\n", {"a  "}},
        {"a,   b \r\n", {"a", "b "}},
        {"   \r\nb", {"", "b"}},
        {"   ", {""}},
        {"\ta", {"\ta"}},
        {"6.000  12.500 \r\n", {"6.000  12.500 "}},
        // Quoted fields
        {"\"a, b\"\r\nc\r\n", {"a, b", "c"}},
        {"\"a\",\"b\"\r\n", {"a", "b"}},
        {"  \" a \"  ,b", {" a ", "b"}},
        {"\"\"\r\nb", {"", "b"}},
        {"\"a\r\nb\"\r\nc", {"a\r\nb", "c"}},
        {"\"a", {"a"}},
        {"\"", {""}},
        {"\"a\"b\r\nc", {"a", "b", "c"}},
        {"\"a\"\"b\"\r\n", {"a", "b"}},
        {"a\"b,c\"\r\n", {"a\"b", "c\""}},
        // Any byte but the separators belongs to a field
        {Bytes("a\0b\x1A\xFF\r\n", 7), {Bytes("a\0b\x1A\xFF", 5)}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(fieldsOf(row.text), row.fields) << '"' << row.text << '"';
}

TEST(SequentialText, ReadsWholeLines) {
    EXPECT_EQ(wholeLinesOf("  a, \"b\"  \r\n\r\nc\rd\n e"),
              (std::vector<Bytes>{"  a, \"b\"  ", "", "c", "d", " e"}));
}

TEST(SequentialText, MixesFieldsAndLines) {
    SequentialText text("a,b c\r\nd");
    EXPECT_EQ(text.readField(), "a");
    EXPECT_EQ(text.readLine(), "b c");
    EXPECT_EQ(text.readField(), "d");
    EXPECT_TRUE(text.atEnd());
}

TEST(SequentialText, GoesOnInACopy) {
    SequentialText text("a,b\r\nc");
    text.readField();
    EXPECT_EQ(text.position(), 2u);
    const Bytes copy = "a,B\r\nC";
    SequentialText other = text.in(copy);
    EXPECT_EQ(other.readField(), "B");
    EXPECT_EQ(other.readLine(), "C");
}

TEST(SequentialText, EndsWithInputPastEndOfFile) {
    SequentialText text("a\r\n");
    EXPECT_EQ(text.readField(), "a");
    EXPECT_EQ(errorOf([&] { text.readField(); }), errInputPastEnd);
    EXPECT_EQ(errorOf([&] { text.readLine(); }), errInputPastEnd);
    SequentialText empty;
    EXPECT_EQ(errorOf([&] { empty.readField(); }), errInputPastEnd);
}

TEST(SequentialText, FindsTheEndOfALineOfAnyLength) {
    for (const Bytes end : {"\r\n", "\n", "\r"}) {
        for (std::size_t length = 250; length < 780; ++length) {
            const Bytes line(length, 'x');
            ASSERT_EQ(wholeLinesOf(line + end + "y" + end), (std::vector<Bytes>{line, "y"})) << length;
        }
    }
}

} // namespace

} // namespace varno
