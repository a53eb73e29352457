// Run-time classes: kinds, casts, creation by record and by name.
#include <afxwin.h>

#include <gtest/gtest.h>

#include <memory>

namespace
{

int g_createdLeaves = 0;

} // namespace

class RuntimeBranch : public CObject
{
    DECLARE_DYNAMIC(RuntimeBranch)
};

class RuntimeLeaf : public RuntimeBranch
{
    DECLARE_DYNCREATE(RuntimeLeaf)
protected:
    RuntimeLeaf() { ++g_createdLeaves; }
};

IMPLEMENT_DYNAMIC(RuntimeBranch, CObject)
IMPLEMENT_DYNCREATE(RuntimeLeaf, RuntimeBranch)

TEST(RuntimeClass, Record_DescribesTheClass)
{
    const CRuntimeClass* const record = RUNTIME_CLASS(RuntimeLeaf);
    EXPECT_STREQ("RuntimeLeaf", record->m_lpszClassName);
    EXPECT_EQ(static_cast<int>(sizeof(RuntimeLeaf)), record->m_nObjectSize);
    EXPECT_EQ(0xFFFFu, record->m_wSchema);
    EXPECT_EQ(RUNTIME_CLASS(RuntimeBranch), record->m_pfnGetBaseClass());
    EXPECT_EQ(nullptr, RUNTIME_CLASS(CObject)->m_pfnGetBaseClass);
    EXPECT_EQ(&RuntimeLeaf::classRuntimeLeaf, record);
}

TEST(RuntimeClass, IsKindOf_FollowsTheBases)
{
    const std::unique_ptr<CObject> leaf(RUNTIME_CLASS(RuntimeLeaf)->CreateObject());
    RuntimeBranch branch;
    EXPECT_TRUE(leaf->IsKindOf(RUNTIME_CLASS(RuntimeLeaf)));
    EXPECT_TRUE(leaf->IsKindOf(RUNTIME_CLASS(RuntimeBranch)));
    EXPECT_TRUE(leaf->IsKindOf(RUNTIME_CLASS(CObject)));
    EXPECT_FALSE(branch.IsKindOf(RUNTIME_CLASS(RuntimeLeaf)));
    EXPECT_FALSE(leaf->IsKindOf(RUNTIME_CLASS(CPen)));
    EXPECT_EQ(RUNTIME_CLASS(RuntimeLeaf), leaf->GetRuntimeClass());
    EXPECT_FALSE(leaf->IsSerializable());
}

TEST(RuntimeClass, Bases_AreFoundAcrossModules)
{
    CPen pen;
    EXPECT_TRUE(pen.IsKindOf(RUNTIME_CLASS(CGdiObject)));
    EXPECT_TRUE(RUNTIME_CLASS(CPaintDC)->IsDerivedFrom(RUNTIME_CLASS(CDC)));
    EXPECT_FALSE(RUNTIME_CLASS(CDC)->IsDerivedFrom(RUNTIME_CLASS(CPaintDC)));
}

TEST(RuntimeClass, DynamicDowncast_GivesNullForAnotherClass)
{
    RuntimeBranch branch;
    CObject* const object = &branch;
    EXPECT_EQ(&branch, DYNAMIC_DOWNCAST(RuntimeBranch, object));
    EXPECT_EQ(nullptr, DYNAMIC_DOWNCAST(RuntimeLeaf, object));
    EXPECT_EQ(nullptr, DYNAMIC_DOWNCAST(RuntimeLeaf, static_cast<CObject*>(nullptr)));
    EXPECT_EQ(&branch, STATIC_DOWNCAST(RuntimeBranch, object));
}

TEST(RuntimeClass, Creation_NeedsADefaultConstructor)
{
    const int before = g_createdLeaves;
    const std::unique_ptr<CObject> leaf(RUNTIME_CLASS(RuntimeLeaf)->CreateObject());
    EXPECT_NE(nullptr, DYNAMIC_DOWNCAST(RuntimeLeaf, leaf.get()));
    EXPECT_EQ(before + 1, g_createdLeaves);
    EXPECT_EQ(nullptr, RUNTIME_CLASS(RuntimeBranch)->CreateObject());
}

TEST(RuntimeClass, Names_FindClassesOfAllModules)
{
    EXPECT_EQ(RUNTIME_CLASS(RuntimeLeaf), CRuntimeClass::FromName("RuntimeLeaf"));
    EXPECT_EQ(RUNTIME_CLASS(RuntimeBranch), CRuntimeClass::FromName(L"RuntimeBranch"));
    EXPECT_EQ(RUNTIME_CLASS(CBitmap), CRuntimeClass::FromName(L"CBitmap"));
    EXPECT_EQ(RUNTIME_CLASS(CObject), CRuntimeClass::FromName("CObject"));
    EXPECT_EQ(nullptr, CRuntimeClass::FromName("NoSuchClass"));
    EXPECT_EQ(nullptr, CRuntimeClass::FromName(static_cast<LPCSTR>(nullptr)));

    const std::unique_ptr<CObject> leaf(CRuntimeClass::CreateObject(L"RuntimeLeaf"));
    EXPECT_NE(nullptr, DYNAMIC_DOWNCAST(RuntimeLeaf, leaf.get()));
    EXPECT_EQ(nullptr, CRuntimeClass::CreateObject("NoSuchClass"));
    EXPECT_EQ(nullptr, CRuntimeClass::CreateObject("RuntimeBranch"));
}

TEST(RuntimeClass, UnloadedClasses_AreNotFoundAnyMore)
{
    static CRuntimeClass record = {"PassingClass", 8, 0xFFFF, nullptr, &CObject::GetThisClass, nullptr};
    {
        const AFX_CLASSINIT entry(&record);
        EXPECT_EQ(&record, CRuntimeClass::FromName("PassingClass"));
    }
    EXPECT_EQ(nullptr, CRuntimeClass::FromName("PassingClass"));
    EXPECT_EQ(RUNTIME_CLASS(RuntimeLeaf), CRuntimeClass::FromName("RuntimeLeaf"));
}
