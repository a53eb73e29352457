// Exceptions: who frees them, their texts, and the TRY macros.
#include <afxwin.h>

#include "tests/framework/ControlsResource.h"
#include "tests/support/MessageBoxProbe.h"

#include <gtest/gtest.h>

namespace
{

int g_deletedExceptions = 0;

class HeapException : public CException
{
public:
    explicit HeapException(int number) : CException(TRUE), m_number(number) {}
    ~HeapException() override { ++g_deletedExceptions; }

    int m_number;
};

// Which block a thrown exception reaches, and how many exceptions were freed on the way.
std::string Caught(void (*raise)())
{
    const int before = g_deletedExceptions;
    std::string block = "none";
    TRY
    {
        raise();
    }
    CATCH(CUserException, e)
    {
        block = "user";
    }
    AND_CATCH(HeapException, e)
    {
        block = "heap " + std::to_string(e->m_number);
    }
    END_CATCH
    return block + ", freed " + std::to_string(g_deletedExceptions - before);
}

} // namespace

TEST(Exception, TryMacros_ChooseTheBlockAndFreeTheException)
{
    EXPECT_EQ("none, freed 0", Caught([] {}));
    EXPECT_EQ("user, freed 0", Caught([] { AfxThrowUserException(); }));
    EXPECT_EQ("heap 5, freed 1", Caught([] { THROW(new HeapException(5)); }));
    EXPECT_THROW(Caught([] { AfxThrowResourceException(); }), CResourceException*);
}

TEST(Exception, ThrowLast_PassesTheExceptionOnUnfreed)
{
    const int before = g_deletedExceptions;
    int number = 0;
    TRY{TRY{THROW(new HeapException(8));
}
CATCH_ALL(e)
{
    THROW_LAST();
}
END_CATCH_ALL
}
CATCH(HeapException, e)
{
    number = e->m_number;
    EXPECT_EQ(before, g_deletedExceptions);
}
END_CATCH
EXPECT_EQ(8, number);
EXPECT_EQ(before + 1, g_deletedExceptions);
}

TEST(Exception, SharedExceptions_SurviveDelete)
{
    for (int i = 0; i < 3; ++i)
    {
        try
        {
            AfxThrowMemoryException();
        }
        catch (CException* exception)
        {
            EXPECT_TRUE(exception->IsKindOf(RUNTIME_CLASS(CMemoryException)));
            EXPECT_TRUE(exception->IsKindOf(RUNTIME_CLASS(CSimpleException)));
            exception->Delete();
        }
    }
}

TEST(Exception, Messages)
{
    wchar_t message[200] = L"unchanged";
    UINT help = 9;
    try
    {
        AfxThrowResourceException();
    }
    catch (CException* exception)
    {
        EXPECT_TRUE(exception->GetErrorMessage(message, _countof(message), &help));
        EXPECT_STREQ(L"A required resource was unavailable.", message);
        EXPECT_EQ(0u, help);
        EXPECT_TRUE(exception->GetErrorMessage(message, 5));
        EXPECT_STREQ(L"A re", message);
        exception->Delete();
    }
    try
    {
        AfxThrowUserException();
    }
    catch (CException* exception)
    {
        EXPECT_FALSE(exception->GetErrorMessage(message, _countof(message)));
        EXPECT_STREQ(L"", message);
        exception->Delete();
    }
}

TEST(Exception, Reports_ShowTheMessageOrAGeneralOne)
{
    quor::test::MessageBoxProbe boxes;
    const auto report = [](void (*fail)()) {
        try
        {
            fail();
        }
        catch (CException* exception)
        {
            EXPECT_EQ(exception->ReportError(MB_OK), IDOK);
            exception->Delete();
        }
    };
    report([] { AfxThrowResourceException(); });
    report([] { AfxThrowUserException(); });
    ASSERT_EQ(boxes.Shown().size(), 2u);
    EXPECT_EQ(boxes.Shown()[0].text, L"A required resource was unavailable.");
    EXPECT_EQ(boxes.Shown()[1].text, L"An operation failed.");
    // One without a message of its own shows the caller's.
    HeapException silent(1);
    silent.ReportError(MB_OK, IDS_TOOL_TIP);
    silent.ReportError(MB_OK, 0xFFF3);
    ASSERT_EQ(boxes.Shown().size(), 4u);
    EXPECT_EQ(boxes.Shown()[2].text, L"A tip of the resources");
    EXPECT_EQ(boxes.Shown()[3].text, L"An operation failed.") << "there is no such text";
}
