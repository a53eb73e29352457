// CList: a doubly linked list of values.
#pragma once

#include "fx/elements.h"
#include "fx/position.h"

// A list whose elements are reached by POSITION, which stays valid until its element is removed. Functions
// that need an element throw CInvalidArgException when there is none. ARG_TYPE is how elements are passed.
// Elements are compared with CompareElements.
template <class TYPE, class ARG_TYPE = const TYPE&> class CList : public CObject
{
    struct CNode : public __POSITION
    {
        explicit CNode(ARG_TYPE element) : pNext(NULL), pPrev(NULL), data(element) {}
        CNode* pNext;
        CNode* pPrev;
        TYPE data;
    };

public:
    CList(INT_PTR = 10) : m_pHead(NULL), m_pTail(NULL), m_nCount(0) {}
    virtual ~CList() { RemoveAll(); }

    INT_PTR GetCount() const { return m_nCount; }
    INT_PTR GetSize() const { return m_nCount; }
    BOOL IsEmpty() const { return m_nCount == 0; }

    TYPE& GetHead() { return Node(m_pHead)->data; }
    const TYPE& GetHead() const { return Node(m_pHead)->data; }
    TYPE& GetTail() { return Node(m_pTail)->data; }
    const TYPE& GetTail() const { return Node(m_pTail)->data; }

    // Add or remove at an end. Remove returns the element.
    POSITION AddHead(ARG_TYPE newElement) { return Link(NULL, newElement, m_pHead); }
    POSITION AddTail(ARG_TYPE newElement) { return Link(m_pTail, newElement, NULL); }
    TYPE RemoveHead() { return Take(m_pHead); }
    TYPE RemoveTail() { return Take(m_pTail); }
    // Add copies of all elements of another list, which keep their order.
    void AddHead(CList* pNewList)
    {
        ENSURE_ARG(pNewList != NULL && pNewList != this);
        for (POSITION pos = pNewList->GetTailPosition(); pos != NULL;)
            AddHead(pNewList->GetPrev(pos));
    }
    void AddTail(CList* pNewList)
    {
        ENSURE_ARG(pNewList != NULL && pNewList != this);
        for (POSITION pos = pNewList->GetHeadPosition(); pos != NULL;)
            AddTail(pNewList->GetNext(pos));
    }
    void RemoveAll()
    {
        while (m_pHead != NULL)
            RemoveAt(m_pHead);
    }

    POSITION GetHeadPosition() const { return m_pHead; }
    POSITION GetTailPosition() const { return m_pTail; }
    // The element at the position, which moves on and becomes NULL after the last one.
    TYPE& GetNext(POSITION& rPosition)
    {
        CNode* pNode = Node(rPosition);
        rPosition = pNode->pNext;
        return pNode->data;
    }
    const TYPE& GetNext(POSITION& rPosition) const { return const_cast<CList*>(this)->GetNext(rPosition); }
    TYPE& GetPrev(POSITION& rPosition)
    {
        CNode* pNode = Node(rPosition);
        rPosition = pNode->pPrev;
        return pNode->data;
    }
    const TYPE& GetPrev(POSITION& rPosition) const { return const_cast<CList*>(this)->GetPrev(rPosition); }

    TYPE& GetAt(POSITION position) { return Node(position)->data; }
    const TYPE& GetAt(POSITION position) const { return Node(position)->data; }
    void SetAt(POSITION pos, ARG_TYPE newElement) { Node(pos)->data = newElement; }
    void RemoveAt(POSITION position)
    {
        CNode* pNode = Node(position);
        (pNode->pPrev == NULL ? m_pHead : pNode->pPrev->pNext) = pNode->pNext;
        (pNode->pNext == NULL ? m_pTail : pNode->pNext->pPrev) = pNode->pPrev;
        --m_nCount;
        delete pNode;
    }
    POSITION InsertBefore(POSITION position, ARG_TYPE newElement)
    {
        return position == NULL ? AddHead(newElement)
                                : Link(Node(position)->pPrev, newElement, Node(position));
    }
    POSITION InsertAfter(POSITION position, ARG_TYPE newElement)
    {
        return position == NULL ? AddTail(newElement)
                                : Link(Node(position), newElement, Node(position)->pNext);
    }

    // The first equal element after startAfter (NULL: from the head), or NULL.
    POSITION Find(ARG_TYPE searchValue, POSITION startAfter = NULL) const
    {
        CNode* pNode = startAfter == NULL ? m_pHead : Node(startAfter)->pNext;
        while (pNode != NULL && !CompareElements(&pNode->data, &searchValue))
            pNode = pNode->pNext;
        return pNode;
    }
    // The position of the element with a zero-based index, or NULL.
    POSITION FindIndex(INT_PTR nIndex) const
    {
        if (nIndex < 0 || nIndex >= m_nCount)
            return NULL;
        CNode* pNode = m_pHead;
        while (nIndex-- > 0)
            pNode = pNode->pNext;
        return pNode;
    }

    // Stores the elements, or adds those loaded at the tail.
    virtual void Serialize(CArchive& ar)
    {
        CObject::Serialize(ar);
        if (ar.IsStoring())
        {
            quorfx::WriteElementCount(ar, static_cast<DWORD_PTR>(m_nCount));
            for (CNode* pNode = m_pHead; pNode != NULL; pNode = pNode->pNext)
                SerializeElements<TYPE>(ar, &pNode->data, 1);
            return;
        }
        for (DWORD_PTR nLeft = quorfx::ReadElementCount(ar); nLeft != 0; --nLeft)
        {
            TYPE element = TYPE();
            SerializeElements<TYPE>(ar, &element, 1);
            AddTail(element);
        }
    }

private:
    static CNode* Node(POSITION position)
    {
        ENSURE_ARG(position != NULL);
        return static_cast<CNode*>(position);
    }

    CNode* Link(CNode* pPrev, ARG_TYPE element, CNode* pNext)
    {
        CNode* pNode = new CNode(element);
        pNode->pPrev = pPrev;
        pNode->pNext = pNext;
        (pPrev == NULL ? m_pHead : pPrev->pNext) = pNode;
        (pNext == NULL ? m_pTail : pNext->pPrev) = pNode;
        ++m_nCount;
        return pNode;
    }

    TYPE Take(CNode* pNode)
    {
        TYPE element(Node(pNode)->data);
        RemoveAt(pNode);
        return element;
    }

    CNode* m_pHead;
    CNode* m_pTail;
    INT_PTR m_nCount;
};
