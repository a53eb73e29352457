// Recently used files: their order, their names in menus, and the settings that keep them.
#include "tests/documents/DocumentApp.h"

#include <afxadv.h>

namespace
{

using namespace quor::test;

std::string Paths(CRecentFileList& list)
{
    std::string text;
    for (int i = 0; i < list.GetSize(); ++i)
        text += (i > 0 ? "|" : "") + Text(list[i]);
    return text;
}

CRecentFileList* NewList(int size = 3, UINT start = 0)
{
    return new CRecentFileList(start, L"Recent tests", L"Test%d", size);
}

class RecentFiles : public testing::Test
{
protected:
    DocumentApp m_app;
    std::unique_ptr<CRecentFileList> m_list{NewList()};
};

TEST_F(RecentFiles, TheNewestComesFirst)
{
    for (LPCTSTR path : {L"c:\\one.txt", L"c:\\two.txt", L"c:\\three.txt", L"c:\\four.txt"})
        m_list->Add(path);
    EXPECT_EQ(Paths(*m_list), "c:\\four.txt|c:\\three.txt|c:\\two.txt");
    EXPECT_EQ(m_list->GetSize(), 3);
}

TEST_F(RecentFiles, AFileIsInTheListOnce)
{
    m_list->Add(L"c:\\one.txt");
    m_list->Add(L"c:\\two.txt");
    m_list->Add(L"C:\\ONE.TXT");
    EXPECT_EQ(Paths(*m_list), "C:\\ONE.TXT|c:\\two.txt|");
}

TEST_F(RecentFiles, Remove_ClosesTheGap)
{
    m_list->Add(L"c:\\one.txt");
    m_list->Add(L"c:\\two.txt");
    m_list->Remove(0);
    EXPECT_EQ(Paths(*m_list), "c:\\one.txt||");
}

TEST_F(RecentFiles, Add_MakesTheFullPath)
{
    TCHAR folder[MAX_PATH] = {};
    ::GetCurrentDirectory(MAX_PATH, folder);
    m_list->Add(L"short.txt");
    EXPECT_EQ((*m_list)[0].Left(static_cast<int>(_tcslen(folder))), folder);
    EXPECT_EQ((*m_list)[0].Right(10), L"\\short.txt");
}

TEST_F(RecentFiles, DisplayName_FitsTheMenu)
{
    struct Case
    {
        LPCTSTR path;
        const char* shown;
    };
    const Case cases[] = {
        {L"c:\\home\\letter.txt", "letter.txt"},
        {L"c:\\home\\more\\letter.txt", "c:\\home\\more\\letter.txt"},
        {L"c:\\a very long folder\\and another\\deep\\letter.txt", "c:\\...\\deep\\letter.txt"},
        {L"\\\\server\\share\\quite a long folder\\x.txt", "\\\\server\\share\\...\\x.txt"},
        {L"c:\\x\\a name that has many more characters.txt", "a name that has many more characters.txt"},
    };
    for (const Case& each : cases)
    {
        m_list->Add(each.path);
        CString name;
        EXPECT_TRUE(m_list->GetDisplayName(name, 0, L"c:\\home\\", 8));
        EXPECT_EQ(Text(name), each.shown);
    }
    CString name;
    EXPECT_TRUE(m_list->GetDisplayName(name, 0, L"c:\\home\\", 8, FALSE));
    EXPECT_EQ(Text(name), "");
    m_list.reset(NewList());
    EXPECT_FALSE(m_list->GetDisplayName(name, 0, L"c:\\home\\", 8));
}

class RecentFilesMenu : public RecentFiles
{
protected:
    RecentFilesMenu()
    {
        m_menu.CreatePopupMenu();
        m_menu.AppendMenu(MF_STRING, ID_FILE_OPEN, L"Open");
        m_menu.AppendMenu(MF_STRING, ID_FILE_MRU_FILE1, L"Recent");
        m_menu.AppendMenu(MF_STRING, ID_APP_EXIT, L"Exit");
    }

    // Returns where the walk over the items goes on.
    UINT Update()
    {
        CCmdUI state;
        state.m_pMenu = &m_menu;
        state.m_nID = ID_FILE_MRU_FILE1;
        state.m_nIndex = 1;
        state.m_nIndexMax = static_cast<UINT>(m_menu.GetMenuItemCount());
        m_list->UpdateMenu(&state);
        return state.m_nIndex + 1;
    }

    CMenu m_menu;
};

TEST_F(RecentFilesMenu, WithoutFiles_TheItemIsGrey)
{
    EXPECT_EQ(Update(), 2u);
    EXPECT_EQ(Items(m_menu), "Open|Recent|Exit");
    EXPECT_TRUE(m_menu.GetMenuState(1, MF_BYPOSITION) & MF_GRAYED);
}

TEST_F(RecentFilesMenu, Files_HaveNumbersAsKeys)
{
    m_list->Add(L"c:\\one.txt");
    m_list->Add(L"c:\\salt & pepper.txt");
    EXPECT_EQ(Update(), 3u);
    EXPECT_EQ(Items(m_menu), "Open|&1 c:\\salt && pepper.txt|&2 c:\\one.txt|Exit");
    EXPECT_EQ(m_menu.GetMenuItemID(2), static_cast<UINT>(ID_FILE_MRU_FILE2));
    // Another time the items of the last time are replaced.
    m_list->Add(L"c:\\three.txt");
    EXPECT_EQ(Update(), 4u);
    EXPECT_EQ(Items(m_menu), "Open|&1 c:\\three.txt|&2 c:\\salt && pepper.txt|&3 c:\\one.txt|Exit");
}

TEST_F(RecentFilesMenu, TheTenthAndLaterFiles_HaveOtherKeys)
{
    m_list.reset(NewList(3, 8));
    for (LPCTSTR path : {L"c:\\c", L"c:\\b", L"c:\\a"})
        m_list->Add(path);
    Update();
    EXPECT_EQ(Items(m_menu), "Open|&9 c:\\a|1&0 c:\\b|11 c:\\c|Exit");
}

TEST_F(RecentFilesMenu, WhenTheFilesAreGone_TheItemHasItsTextAgain)
{
    m_list->Add(L"c:\\one.txt");
    Update();
    m_list->Remove(0);
    Update();
    EXPECT_EQ(Items(m_menu), "Open|Recent|Exit");
    EXPECT_TRUE(m_menu.GetMenuState(1, MF_BYPOSITION) & MF_GRAYED);
}

TEST_F(RecentFiles, Settings_KeepTheList)
{
    m_list->Add(L"c:\\one.txt");
    m_list->Add(L"c:\\two.txt");
    m_list->WriteList();
    EXPECT_STREQ(m_app.GetProfileString(L"Recent tests", L"Test1"), L"c:\\two.txt");
    m_list.reset(NewList());
    m_list->ReadList();
    EXPECT_EQ(Paths(*m_list), "c:\\two.txt|c:\\one.txt|");
    // A shorter list takes the old entries away.
    m_list->Remove(1);
    m_list->WriteList();
    EXPECT_STREQ(m_app.GetProfileString(L"Recent tests", L"Test2", L"none"), L"none");
    m_app.WriteProfileString(L"Recent tests", NULL, NULL);
}

} // namespace
