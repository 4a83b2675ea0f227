#include "access_list_windows.h"
#include "bridge/files/rescue_folder.h"
#include "document_with_recovery_file.h"

class RecoveryFilesOnWindows : public DocumentWithRecoveryFile {};

TEST_F(RecoveryFilesOnWindows, GrantNoMoreThanTheDocument) {
    const std::filesystem::path closed = folder.path() / "closed";
    ASSERT_TRUE(makePrivateFolder(closed));
    putBytes(document, "old");
    const std::wstring ordinary = accessOf(document);
    giveAccessOf(closed, document);
    ASSERT_NE(accessOf(document), ordinary);
    ASSERT_EQ(write("secret").result, WriteResult::written);
    EXPECT_EQ(accessOf(recovery), accessOf(document));
}
