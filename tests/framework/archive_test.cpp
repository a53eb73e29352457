// CArchive: bytes, values, text and objects through files in memory.
#include "tests/framework/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>

namespace
{

// A node of a graph.
class Node : public CObject
{
public:
    DECLARE_SERIAL(Node)
    explicit Node(int number = 0) : m_number(number), m_first(NULL), m_second(NULL) {}
    void Serialize(CArchive& ar) override
    {
        CObject::Serialize(ar);
        if (ar.IsStoring())
            ar << m_number << m_first << m_second;
        else
            ar >> m_number >> m_first >> m_second;
    }

    int m_number;
    Node* m_first;
    Node* m_second;
};
IMPLEMENT_SERIAL(Node, CObject, 1)

class NamedNode : public Node
{
public:
    DECLARE_SERIAL(NamedNode)
    void Serialize(CArchive& ar) override
    {
        Node::Serialize(ar);
        if (ar.IsStoring())
            ar << m_name;
        else
            ar >> m_name;
    }

    CString m_name;
};
IMPLEMENT_SERIAL(NamedNode, Node, 1)

// Reads older versions of itself.
class Versioned : public CObject
{
public:
    DECLARE_SERIAL(Versioned)
    void Serialize(CArchive& ar) override
    {
        if (ar.IsLoading())
        {
            m_version = ar.GetObjectSchema();
            m_secondAnswer = ar.GetObjectSchema();
        }
    }

    UINT m_version = 0;
    UINT m_secondAnswer = 0;
};
IMPLEMENT_SERIAL(Versioned, CObject, VERSIONABLE_SCHEMA | 3)

// Keeps the version of its base.
class WithBaseVersion : public Versioned
{
public:
    DECLARE_SERIAL(WithBaseVersion)
    void Serialize(CArchive& ar) override
    {
        ar.SerializeClass(RUNTIME_CLASS(Versioned));
        Versioned::Serialize(ar);
    }
};
IMPLEMENT_SERIAL(WithBaseVersion, Versioned, 9)

class NotSerial : public CObject
{
    DECLARE_DYNAMIC(NotSerial)
};
IMPLEMENT_DYNAMIC(NotSerial, CObject)

} // namespace

namespace quor::test
{
namespace
{

std::string BytesOf(CMemFile& file)
{
    std::string bytes(static_cast<size_t>(file.GetLength()), '\0');
    file.SeekToBegin();
    file.Read(bytes.data(), static_cast<UINT>(bytes.size()));
    return bytes;
}

// What the call stores, as bytes.
std::string Stored(const std::function<void(CArchive&)>& call)
{
    CMemFile file;
    CArchive ar(&file, CArchive::store);
    call(ar);
    ar.Close();
    return BytesOf(file);
}

// Runs the call on an archive that loads these bytes.
void Load(std::string bytes, const std::function<void(CArchive&)>& call)
{
    CMemFile file(reinterpret_cast<BYTE*>(bytes.data()), static_cast<UINT>(bytes.size()));
    CArchive ar(&file, CArchive::load);
    call(ar);
}

// The cause of the archive exception that loading these bytes throws, or -1.
int LoadFailure(const std::string& bytes, const std::function<void(CArchive&)>& call)
{
    try
    {
        Load(bytes, call);
    }
    catch (CArchiveException* exception)
    {
        const int cause = exception->m_cause;
        exception->Delete();
        return cause;
    }
    return -1;
}

void LoadAnyObject(CArchive& ar)
{
    CObject* object = NULL;
    ar >> object;
    delete object;
}

TEST(Archive, ValuesOfAllTypesComeBack)
{
    const std::string bytes = Stored([](CArchive& ar) {
        ar << BYTE(200) << WORD(60000) << LONG(-70000) << DWORD(4000000000u) << 1.5f << -2.25;
        ar << LONGLONG(-5000000000) << ULONGLONG(1) << -3 << short(-4) << 'c' << L'\x4e2d' << 7u << true;
    });
    EXPECT_EQ(1u + 2 + 4 + 4 + 4 + 8 + 8 + 8 + 4 + 2 + 1 + 2 + 4 + 1, bytes.size());
    Load(bytes, [](CArchive& ar) {
        BYTE by;
        WORD w;
        LONG l;
        DWORD dw;
        float f;
        double d;
        LONGLONG ll;
        ULONGLONG ull;
        int i;
        short s;
        char c;
        wchar_t wc;
        unsigned u;
        bool b;
        ar >> by >> w >> l >> dw >> f >> d >> ll >> ull >> i >> s >> c >> wc >> u >> b;
        EXPECT_EQ(200, by);
        EXPECT_EQ(60000, w);
        EXPECT_EQ(-70000, l);
        EXPECT_EQ(4000000000u, dw);
        EXPECT_EQ(1.5f, f);
        EXPECT_EQ(-2.25, d);
        EXPECT_EQ(-5000000000, ll);
        EXPECT_EQ(1u, ull);
        EXPECT_EQ(-3, i);
        EXPECT_EQ(-4, s);
        EXPECT_EQ('c', c);
        EXPECT_EQ(L'\x4e2d', wc);
        EXPECT_EQ(7u, u);
        EXPECT_TRUE(b);
        EXPECT_TRUE(ar.IsBufferEmpty());
    });
}

TEST(Archive, ValuesAreStoredInTheByteOrderOfThePlatform)
{
    EXPECT_EQ(std::string("\x34\x12\x78\x56\x34\x12\x01", 7),
              Stored([](CArchive& ar) { ar << WORD(0x1234) << DWORD(0x12345678) << true; }));
}

TEST(Archive, BlocksLongerThanTheBufferComeBack)
{
    std::string block(10000, '\0');
    for (size_t i = 0; i < block.size(); ++i)
        block[i] = static_cast<char>(i % 251);
    CMemFile file;
    CArchive out(&file, CArchive::store, 200);
    out << BYTE(1);
    out.Write(block.data(), 10000);
    out.Write(block.data(), 150);
    out.Write(block.data(), 150);
    out.Close();
    ASSERT_EQ(10301u, file.GetLength());
    file.SeekToBegin();
    CArchive in(&file, CArchive::load, 200);
    BYTE first = 0;
    in >> first;
    std::string read(10000, '\0');
    EXPECT_EQ(10000u, in.Read(read.data(), 10000));
    EXPECT_EQ(block, read);
    EXPECT_EQ(300u, in.Read(read.data(), 10000));
    EXPECT_EQ(block.substr(0, 150) + block.substr(0, 150), read.substr(0, 300));
    EXPECT_EQ(0u, in.Read(read.data(), 1));
}

TEST(Archive, UsesABufferOfTheCaller)
{
    BYTE buffer[256] = {};
    CMemFile file;
    CArchive ar(&file, CArchive::store, sizeof(buffer), buffer);
    ar << BYTE(77);
    EXPECT_EQ(77, buffer[0]);
    EXPECT_EQ(0u, file.GetLength());
    ar.Flush();
    EXPECT_EQ(1u, file.GetLength());
}

TEST(Archive, FlushWhileLoadingPutsTheFileToWhereTheArchiveHasRead)
{
    CMemFile file;
    file.Write("abcdef", 6);
    file.SeekToBegin();
    CArchive ar(&file, CArchive::load);
    char c;
    ar >> c >> c;
    EXPECT_EQ(6u, file.GetPosition());
    ar.Flush();
    EXPECT_EQ(2u, file.GetPosition());
    ar >> c;
    EXPECT_EQ('c', c);
    ar.Close();
    EXPECT_EQ(3u, file.GetPosition());
    EXPECT_EQ(nullptr, ar.GetFile());
}

TEST(Archive, TheDestructorStoresWhatIsInTheBuffer)
{
    CMemFile file;
    {
        CArchive ar(&file, CArchive::store);
        ar << BYTE(1);
    }
    EXPECT_EQ(1u, file.GetLength());
    {
        CArchive ar(&file, CArchive::store | CArchive::bNoFlushOnDelete);
        ar << BYTE(2);
    }
    EXPECT_EQ(1u, file.GetLength());
    CArchive ar(&file, CArchive::store);
    ar << BYTE(3);
    ar.Abort();
    EXPECT_EQ(1u, file.GetLength());
}

TEST(Archive, TheWrongDirectionAndTheEndThrow)
{
    EXPECT_EQ(CArchiveException::readOnly, LoadFailure("abc", [](CArchive& ar) { ar << 1; }));
    EXPECT_EQ(CArchiveException::endOfFile, LoadFailure("abc", [](CArchive& ar) {
                  int i;
                  ar >> i;
              }));
    CMemFile file;
    CArchive ar(&file, CArchive::store);
    EXPECT_TRUE(Throws<CArchiveException>([&] {
        int i;
        ar >> i;
    }));
}

TEST(Archive, StringsTellTheirKindAndLength)
{
    EXPECT_EQ(std::string("\xFF\xFE\xFF\x02h\0i\0", 8),
              Stored([](CArchive& ar) { ar << CString(_T("hi")); }));
    EXPECT_EQ(std::string("\x02hi", 3), Stored([](CArchive& ar) { ar << CStringA("hi"); }));
    Load(std::string("\x02hi", 3), [](CArchive& ar) {
        CString text;
        ar >> text;
        EXPECT_STREQ(_T("hi"), text);
    });
}

TEST(Archive, StringsOfAnyLengthComeBack)
{
    for (const int length : {0, 1, 254, 255, 256, 65533, 65534, 65535, 70000})
    {
        const CString wide(L'\x4e2d', length);
        const CStringA narrow('x', length);
        Load(Stored([&](CArchive& ar) { ar << wide << narrow << BYTE(42); }), [&](CArchive& ar) {
            CString wideRead;
            CStringA narrowRead;
            BYTE behind = 0;
            ar >> wideRead >> narrowRead >> behind;
            EXPECT_TRUE(wide == wideRead) << length;
            EXPECT_EQ(0, narrow.Compare(narrowRead)) << length;
            EXPECT_EQ(42, behind) << length;
        });
    }
}

TEST(Archive, AStringLongerThanTheFile_EndsWithTheFile)
{
    const std::string bytes("\xFF\xFF\xFF\x00\x00\x00\x20zzzz", 11);
    EXPECT_EQ(CArchiveException::endOfFile, LoadFailure(bytes, [](CArchive& ar) {
                  CString text;
                  ar >> text;
              }));
}

TEST(Archive, LinesAreWrittenAsTheyAreAndReadWithoutTheirEnds)
{
    const std::string bytes = Stored([](CArchive& ar) { ar.WriteString(_T("one\r\n\r\nlast")); });
    EXPECT_EQ(22u, bytes.size());
    Load(bytes, [](CArchive& ar) {
        CString line;
        EXPECT_TRUE(ar.ReadString(line));
        EXPECT_STREQ(_T("one"), line);
        EXPECT_TRUE(ar.ReadString(line));
        EXPECT_STREQ(_T(""), line);
        EXPECT_TRUE(ar.ReadString(line));
        EXPECT_STREQ(_T("last"), line);
        EXPECT_FALSE(ar.ReadString(line));
    });
    Load(bytes, [](CArchive& ar) {
        TCHAR text[10];
        EXPECT_EQ(text, ar.ReadString(text, 3));
        EXPECT_STREQ(_T("on"), text);
        EXPECT_EQ(text, ar.ReadString(text, 10));
        EXPECT_STREQ(_T("e"), text);
        EXPECT_EQ(text, ar.ReadString(text, 10));
        EXPECT_STREQ(_T(""), text);
        EXPECT_EQ(text, ar.ReadString(text, 10));
        EXPECT_STREQ(_T("last"), text);
        EXPECT_EQ(nullptr, ar.ReadString(text, 10));
    });
}

TEST(Archive, GeometryComesBack)
{
    const std::string bytes =
        Stored([](CArchive& ar) { ar << CSize(1, 2) << CPoint(3, 4) << CRect(5, 6, 7, 8); });
    EXPECT_EQ(32u, bytes.size());
    Load(bytes, [](CArchive& ar) {
        CSize size;
        CPoint point;
        CRect rect;
        ar >> size >> point >> rect;
        EXPECT_EQ(CSize(1, 2), size);
        EXPECT_EQ(CPoint(3, 4), point);
        EXPECT_EQ(CRect(5, 6, 7, 8), rect);
    });
}

TEST(Archive, TimesComeBack)
{
    CTime time(2031, 2, 3, 4, 5, 6), timeAlone(2001, 1, 1, 0, 0, 0);
    CTimeSpan span(1, 2, 3, 4), spanAlone(-5, 0, 0, 0);
    const std::string bytes = Stored([&](CArchive& ar) {
        ar << time << span;
        spanAlone.Serialize64(timeAlone.Serialize64(ar));
    });
    EXPECT_EQ(32u, bytes.size());
    Load(bytes, [&](CArchive& ar) {
        CTime timeRead, timeAloneRead;
        CTimeSpan spanRead, spanAloneRead;
        ar >> timeRead >> spanRead;
        spanAloneRead.Serialize64(timeAloneRead.Serialize64(ar));
        EXPECT_TRUE(time == timeRead);
        EXPECT_TRUE(span == spanRead);
        EXPECT_TRUE(timeAlone == timeAloneRead);
        EXPECT_TRUE(spanAlone == spanAloneRead);
    });
}

TEST(ArchiveObjects, AnObjectIsItsClassThenItsContent)
{
    Node node(5);
    const std::string bytes = Stored([&](CArchive& ar) { ar << &node; });
    // New class, version 1, "Node", the number, two null pointers.
    EXPECT_EQ(std::string("\xFF\xFF\x01\0\x04\0Node\x05\0\0\0\0\0\0\0", 18), bytes);
}

TEST(ArchiveObjects, LaterObjectsReferToTheClassByNumber)
{
    Node first(1), second(2);
    const std::string bytes = Stored([&](CArchive& ar) { ar << &first << &second << &first; });
    // The class has number 1, the first object 2, the second 3.
    EXPECT_EQ(std::string("\x01\x80\x02\0\0\0\0\0\0\0\x02\0", 12), bytes.substr(18));
}

TEST(ArchiveObjects, GraphsWithSharedObjectsAndCyclesKeepTheirShape)
{
    Node root(1), left(2), right(3);
    root.m_first = &left;
    root.m_second = &right;
    left.m_first = &right;
    right.m_first = &root;
    right.m_second = &right;
    Load(Stored([&](CArchive& ar) { ar << &root; }), [](CArchive& ar) {
        Node* read = NULL;
        ar >> read;
        std::unique_ptr<Node> rootRead(read), leftRead(read->m_first), rightRead(read->m_second);
        EXPECT_EQ(1, rootRead->m_number);
        EXPECT_EQ(2, leftRead->m_number);
        EXPECT_EQ(3, rightRead->m_number);
        EXPECT_EQ(rightRead.get(), leftRead->m_first);
        EXPECT_EQ(nullptr, leftRead->m_second);
        EXPECT_EQ(rootRead.get(), rightRead->m_first);
        EXPECT_EQ(rightRead.get(), rightRead->m_second);
    });
}

TEST(ArchiveObjects, AreCreatedAsTheClassTheyHad)
{
    NamedNode node;
    node.m_number = 8;
    node.m_name = _T("eight");
    const Node* base = &node;
    Load(Stored([&](CArchive& ar) { ar << base; }), [](CArchive& ar) {
        Node* read = NULL;
        ar >> read;
        std::unique_ptr<Node> owner(read);
        NamedNode* named = DYNAMIC_DOWNCAST(NamedNode, read);
        ASSERT_NE(nullptr, named);
        EXPECT_EQ(8, named->m_number);
        EXPECT_STREQ(_T("eight"), named->m_name);
    });
}

TEST(ArchiveObjects, ANullPointerComesBackAsNull)
{
    const std::string bytes = Stored([](CArchive& ar) { ar << static_cast<Node*>(NULL); });
    EXPECT_EQ(std::string("\0\0", 2), bytes);
    Load(bytes, [](CArchive& ar) {
        Node* read = reinterpret_cast<Node*>(1);
        ar >> read;
        EXPECT_EQ(nullptr, read);
    });
}

TEST(ArchiveObjects, ManyObjectsNeedLongNumbers)
{
    std::vector<std::unique_ptr<Node>> nodes;
    for (int i = 0; i < 33000; ++i)
        nodes.push_back(std::make_unique<Node>(i));
    const std::string bytes = Stored([&](CArchive& ar) {
        ar.SetStoreParams(40000);
        for (const auto& node : nodes)
            ar << node.get();
        ar << nodes[32765].get() << nodes[32999].get();
        NamedNode late;
        ar << &late << &late;
    });
    Load(bytes, [&](CArchive& ar) {
        ar.SetLoadParams(40000);
        std::vector<std::unique_ptr<Node>> read;
        for (size_t i = 0; i < nodes.size(); ++i)
        {
            Node* node = NULL;
            ar >> node;
            ASSERT_EQ(static_cast<int>(i), node->m_number);
            read.emplace_back(node);
        }
        Node *atLimit = NULL, *last = NULL;
        NamedNode *late = NULL, *lateAgain = NULL;
        ar >> atLimit >> last >> late >> lateAgain;
        EXPECT_EQ(read[32765].get(), atLimit);
        EXPECT_EQ(read[32999].get(), last);
        EXPECT_EQ(late, lateAgain);
        delete late;
    });
}

TEST(ArchiveObjects, AMappedObjectIsFoundByPointersToIt)
{
    Node root(1), child(2);
    child.m_first = &root;
    const std::string bytes = Stored([&](CArchive& ar) {
        ar.MapObject(&root);
        ar << &child;
    });
    Load(bytes, [](CArchive& ar) {
        Node other(9);
        ar.MapObject(&other);
        Node* read = NULL;
        ar >> read;
        EXPECT_EQ(&other, read->m_first);
        delete read;
    });
}

TEST(ArchiveObjects, ReadObjectWantsItsClass)
{
    Node node(1);
    const std::string bytes = Stored([&](CArchive& ar) { ar << &node; });
    const auto readNamed = [](CArchive& ar) { delete ar.ReadObject(RUNTIME_CLASS(NamedNode)); };
    EXPECT_EQ(CArchiveException::badClass, LoadFailure(bytes, readNamed));
    EXPECT_EQ(CArchiveException::badClass, LoadFailure(bytes + std::string("\x02\0", 2), [](CArchive& ar) {
                  std::unique_ptr<CObject> first(ar.ReadObject(NULL));
                  ar.ReadObject(RUNTIME_CLASS(NamedNode));
              }));
}

TEST(ArchiveObjects, DamagedArchivesAreRefused)
{
    using E = CArchiveException;
    EXPECT_EQ(E::badIndex, LoadFailure(std::string("\x05\0", 2), LoadAnyObject));
    EXPECT_EQ(E::badIndex, LoadFailure(std::string("\x05\x80", 2), LoadAnyObject));
    EXPECT_EQ(E::badIndex, LoadFailure(std::string("\xFF\x7F\x00\x00\x00\x80", 6), LoadAnyObject));
    EXPECT_EQ(E::badClass, LoadFailure(std::string("\xFF\xFF\x01\0\x06\0NoSuch", 12), LoadAnyObject));
    EXPECT_EQ(E::badClass, LoadFailure(std::string("\xFF\xFF\x01\0\x09\0NotSerial", 15), LoadAnyObject));
    EXPECT_EQ(E::badClass, LoadFailure(std::string("\xFF\xFF\x01\0\xFF\xFFNode", 10), LoadAnyObject));
    EXPECT_EQ(E::badSchema, LoadFailure(std::string("\xFF\xFF\x02\0\x04\0Node", 10), LoadAnyObject));
    EXPECT_EQ(E::endOfFile, LoadFailure(std::string("\xFF\xFF\x01\0\x04\0No", 8), LoadAnyObject));
    // The number of the object where that of a class should be.
    Node node;
    const std::string stored = Stored([&](CArchive& ar) { ar << &node; });
    EXPECT_EQ(E::badIndex, LoadFailure(stored + "\x02\x80", [](CArchive& ar) {
                  LoadAnyObject(ar);
                  LoadAnyObject(ar);
              }));
}

TEST(ArchiveObjects, OlderVersionsAreReadByClassesThatAskForThem)
{
    Load(std::string("\xFF\xFF\x01\0\x09\0Versioned\x01\x80", 17), [](CArchive& ar) {
        for (int i = 0; i < 2; ++i)
        {
            Versioned* read = NULL;
            ar >> read;
            EXPECT_EQ(1u, read->m_version);
            EXPECT_EQ(static_cast<UINT>(-1), read->m_secondAnswer);
            delete read;
        }
    });
}

TEST(ArchiveObjects, SerializeClassKeepsTheVersionOfABase)
{
    WithBaseVersion object;
    const std::string bytes = Stored([&](CArchive& ar) { ar << &object; });
    Load(bytes, [](CArchive& ar) {
        WithBaseVersion* read = NULL;
        ar >> read;
        EXPECT_EQ(3u, read->m_version);
        delete read;
    });
}

TEST(ArchiveObjects, AClassIsWrittenAndReadAlone)
{
    const std::string bytes = Stored([](CArchive& ar) {
        ar.WriteClass(RUNTIME_CLASS(NamedNode));
        ar.WriteClass(RUNTIME_CLASS(NamedNode));
    });
    Load(bytes, [](CArchive& ar) {
        UINT schema = 0;
        EXPECT_EQ(RUNTIME_CLASS(NamedNode), ar.ReadClass(RUNTIME_CLASS(Node), &schema));
        EXPECT_EQ(1u, schema);
        EXPECT_EQ(RUNTIME_CLASS(NamedNode), ar.ReadClass());
        EXPECT_EQ(1u, ar.GetObjectSchema());
    });
    EXPECT_EQ(CArchiveException::badClass,
              LoadFailure(bytes, [](CArchive& ar) { ar.ReadClass(RUNTIME_CLASS(Versioned)); }));
}

TEST(ArchiveObjects, ClassesThatAreNotSerialisableAreRefused)
{
    NotSerial object;
    EXPECT_TRUE(object.IsKindOf(RUNTIME_CLASS(NotSerial)));
    EXPECT_FALSE(object.IsSerializable());
    EXPECT_TRUE(Node().IsSerializable());
    CMemFile file;
    CArchive ar(&file, CArchive::store);
    EXPECT_TRUE(Throws<CNotSupportedException>([&] { ar << &object; }));
}

TEST(ArchiveException, TheMessageNamesTheFile)
{
    TCHAR text[200];
    CArchiveException exception(CArchiveException::endOfFile, _T("x.dat"));
    EXPECT_TRUE(exception.GetErrorMessage(text, _countof(text)));
    EXPECT_STREQ(_T("The file \"x.dat\" ended unexpectedly."), text);
}

} // namespace
} // namespace quor::test
