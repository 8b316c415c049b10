
#include "contract/BoundaryContract.h"
#include "rtl/Exceptions.h"

namespace rux::test {

TEST_P(BoundaryContract, FoldersAreMadeWithTheirParents) {
    const std::string odd = OddName(), top = Platform->Folder() + "\\" + odd, deep = top + "\\" + odd + "\\c";
    EXPECT_THROW(Files.ForceDirectories(""), EInOutError);
    EXPECT_FALSE(Files.DirectoryExists(deep));
    EXPECT_TRUE(Files.ForceDirectories(top + "\\\\" + odd + "\\c\\"));
    EXPECT_TRUE(Files.ForceDirectories(deep));
    EXPECT_TRUE(Files.DirectoryExists(deep) && !Files.FileExists(deep));
    EXPECT_TRUE(Files.WriteFile(deep + "\\" + odd, "x"));
    EXPECT_FALSE(Files.ForceDirectories(deep + "\\" + odd + "\\d"));
    EXPECT_FALSE(Files.DirectoryExists(std::string("\\\0x", 3)));
    EXPECT_FALSE(Files.DeleteFile(deep));
    Platform->MakeReadOnly(deep + "\\" + odd);
    std::string held;
    for (const TFolderEntry& entry : Files.ReadFolder(deep))
        held += entry.Name + (entry.IsFolder ? "\\" : ";");
    for (const TFolderEntry& entry : Files.ReadFolder(top))
        held += entry.Name + (entry.IsFolder ? "\\" : ";");
    EXPECT_EQ(held, odd + ";" + odd + "\\");
    EXPECT_TRUE(Files.ReadFolder(deep + "\\" + odd).empty() && Files.ReadFolder(top + "\\missing").empty());

    EXPECT_TRUE(Files.DeleteTree(top + "\\"));
    EXPECT_FALSE(Files.DirectoryExists(top));
    EXPECT_TRUE(Files.DeleteTree(top));
    EXPECT_TRUE(Files.DirectoryExists(Platform->Folder()));
    EXPECT_FALSE(Files.DeleteTree("\\") || Files.DeleteTree(""));
}

TEST_P(BoundaryContract, AFileIsReplacedAsAWholeAndItsStampChangesEachTime) {
    const std::string name = Platform->Folder() + "\\" + OddName() + ".ini", bytes("a\0\r\n\xFF", 5);
    EXPECT_EQ(Files.ReadFile(name), std::nullopt);
    EXPECT_EQ(Files.ReadFile(Platform->Folder()), std::nullopt);
    EXPECT_EQ(Files.LastWriteTime(name), 0);
    EXPECT_EQ(Files.LastWriteTime(Platform->Folder()), 0);
    EXPECT_FALSE(Files.WriteFile(Platform->Folder() + "\\missing\\x", "x"));
    std::set<std::int64_t> stamps{0};
    for (int i = 0; i < 50; ++i) {
        ASSERT_TRUE(Files.WriteFile(name, bytes));
        EXPECT_TRUE(stamps.insert(Files.LastWriteTime(name)).second) << i;
        EXPECT_FALSE(stamps.insert(Files.LastWriteTime(name)).second) << i;
    }
    EXPECT_TRUE(Files.FileExists(name) && !Files.DirectoryExists(name));
    EXPECT_EQ(Files.ReadFile(name), bytes);
    EXPECT_TRUE(Files.DeleteFile(name));
    EXPECT_FALSE(Files.FileExists(name));
    EXPECT_FALSE(Files.DeleteFile(name));
    EXPECT_EQ(Files.LastWriteTime(name), 0);
}

TEST_P(BoundaryContract, RecordsAreAppendedAndSeenAtOnce) {
    const std::string name = Platform->Folder() + "\\RUX.log";
    EXPECT_EQ(Files.OpenAppend(Platform->Folder()), nullptr);
    EXPECT_EQ(Files.OpenAppend(Platform->Folder() + "\\missing\\RUX.log"), nullptr);
    const auto one = Files.OpenAppend(name), other = Files.OpenAppend(name);
    ASSERT_TRUE(one && other);
    EXPECT_TRUE(one->Write("a\r\n"));
    const std::int64_t stamp = Files.LastWriteTime(name);
    EXPECT_TRUE(other->Write("b\r\n") && one->Write("c\r\n") && one->Write(""));
    EXPECT_EQ(Files.ReadFile(name), "a\r\nb\r\nc\r\n");
    EXPECT_NE(Files.LastWriteTime(name), stamp);
}

}  // namespace rux::test
