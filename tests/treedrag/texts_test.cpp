// The tree's names and messages in the language and words that a host has chosen.
#include "tests/treedrag/DragTreeTest.h"

#include "module/QuorTexts.h"
#include "tests/support/MessageBoxProbe.h"

namespace
{

using namespace quor::test;
using namespace QuorUiCtr;

class TreeTexts : public DragTreeTest
{
protected:
    ~TreeTexts() override
    {
        QuorTexts::SetLanguage(QuorLanguage::Default);
        QuorTexts::Replace(QuorText::TreeDeleteQuestion, nullptr);
    }
    CString NewFolder()
    {
        const HTREEITEM folder = tree->CreateNewFolder();
        tree->SendMessage(TVM_ENDEDITLABELNOW, TRUE);
        return tree->GetItemText(folder);
    }
};

TEST_F(TreeTexts, NewFolders_AreNamedInTheLanguage)
{
    EXPECT_EQ(NewFolder(), L"New Folder");
    QuorTexts::SetLanguage(QuorLanguage::Chinese);
    EXPECT_EQ(NewFolder(), L"新建文件夹");
    QuorTexts::SetLanguage(QuorLanguage::English);
    Fill("");
    EXPECT_EQ(NewFolder(), L"New Folder");
}

TEST_F(TreeTexts, TheQuestionBeforeAFolderIsDeleted)
{
    const auto question = [this] {
        Fill("f[x]");
        tree->SelectItem(At("f"));
        const MessageBoxProbe boxes(IDNO);
        tree->DeleteSelected();
        return boxes.Shown().size() == 1 ? boxes.Shown().front().text : L"no box";
    };
    EXPECT_EQ(question(),
              L"You have chosen to delete a folder.  Please confirm you want to delete this folder "
              L"and all items in it?");
    QuorTexts::SetLanguage(QuorLanguage::Chinese);
    EXPECT_EQ(question(), L"您选择了删除文件夹。确定要删除此文件夹及其中的所有项目吗？");
    QuorTexts::Replace(QuorText::TreeDeleteQuestion, L"Really?");
    EXPECT_EQ(question(), L"Really?");
}

} // namespace
