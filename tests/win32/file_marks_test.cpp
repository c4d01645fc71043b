// What a user gave a file beside its content survives a save.
#include <windows.h>

#include <gtest/gtest.h>

#include <sddl.h>

#include "base/file.h"
#include "support/temporary_folder.h"

namespace varno {

namespace {

class FileMarks : public ::testing::Test {
  protected:
    FileMarks() { folder.write("FALL.IND", "old"); }

    std::wstring path() const { return folder.file("FALL.IND").wstring(); }
    void save() {
        File file(systemFileCalls(), folder.path("FALL.IND"), FileMode::output, 0, 1);
        file.printLine("new");
        file.close();
        EXPECT_EQ(folder.read("FALL.IND"), "new\r\n");
    }
    std::wstring rights() const {
        DWORD size = 0;
        GetFileSecurityW(path().c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
        std::vector<unsigned char> descriptor(size);
        EXPECT_TRUE(
            GetFileSecurityW(path().c_str(), DACL_SECURITY_INFORMATION, descriptor.data(), size, &size));
        wchar_t* text = nullptr;
        EXPECT_TRUE(ConvertSecurityDescriptorToStringSecurityDescriptorW(
            descriptor.data(), SDDL_REVISION_1, DACL_SECURITY_INFORMATION, &text, nullptr));
        std::wstring out(text != nullptr ? text : L"");
        LocalFree(text);
        return out;
    }

    testing::TemporaryFolder folder;
};

TEST_F(FileMarks, AttributesStay) {
    ASSERT_TRUE(SetFileAttributesW(path().c_str(), FILE_ATTRIBUTE_HIDDEN));
    save();
    const DWORD attributes = GetFileAttributesW(path().c_str());
    EXPECT_NE(attributes & FILE_ATTRIBUTE_HIDDEN, 0u);
    EXPECT_EQ(attributes & FILE_ATTRIBUTE_READONLY, 0u);
}

TEST_F(FileMarks, RightsStay) {
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    // Everybody may read, the owner may do everything; nothing comes from the folder.
    ASSERT_TRUE(ConvertStringSecurityDescriptorToSecurityDescriptorW(
        L"D:P(A;;FA;;;BA)(A;;FA;;;OW)(A;;FR;;;WD)", SDDL_REVISION_1, &descriptor, nullptr));
    const BOOL set = SetFileSecurityW(path().c_str(), DACL_SECURITY_INFORMATION, descriptor);
    LocalFree(descriptor);
    ASSERT_TRUE(set);
    const std::wstring before = rights();
    save();
    EXPECT_EQ(rights(), before);
}

} // namespace

} // namespace varno
