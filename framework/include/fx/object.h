// The root class CObject, run-time class records, and the macros that declare, define and use them.
#pragma once

#include "fx/config.h"

class CObject;
class CArchive;
class CDumpContext;
struct CRuntimeClass;

// Enters one class record into the list that CRuntimeClass::FromName searches, and takes it out when the
// module that holds it is unloaded. The IMPLEMENT_ macros define one per class.
struct QFX_API AFX_CLASSINIT
{
    explicit AFX_CLASSINIT(CRuntimeClass* pNewClass);
    ~AFX_CLASSINIT();
    AFX_CLASSINIT(const AFX_CLASSINIT&) = delete;
    AFX_CLASSINIT& operator=(const AFX_CLASSINIT&) = delete;

private:
    CRuntimeClass* m_pClass;
};

// What is known about a class at run time. One static record exists per class; it is an aggregate, so that it
// is ready before any constructor runs.
struct QFX_API CRuntimeClass
{
    // The class's name, in ASCII also where text is otherwise wide.
    LPCSTR m_lpszClassName;
    // sizeof the class.
    int m_nObjectSize;
    // Version for serialising; 0xFFFF when the class cannot be serialised.
    UINT m_wSchema;
    // Makes an object with its default constructor; NULL when the class is not DYNCREATE.
    CObject*(PASCAL* m_pfnCreateObject)();
    // Gives the base's record; a function, because that record may live in another module. NULL for CObject.
    CRuntimeClass*(PASCAL* m_pfnGetBaseClass)();
    // The next record in the list of registered classes.
    CRuntimeClass* m_pNextClass;

    // A new object, which the caller owns; NULL when the class cannot create objects.
    CObject* CreateObject();
    // Whether the class is `pBaseClass` or derived from it.
    BOOL IsDerivedFrom(const CRuntimeClass* pBaseClass) const;

    // The record of the class named so in any loaded module, or NULL.
    static CRuntimeClass* PASCAL FromName(LPCSTR lpszClassName);
    static CRuntimeClass* PASCAL FromName(LPCWSTR lpszClassName);
    // A new object of the class named so, or NULL.
    static CObject* PASCAL CreateObject(LPCSTR lpszClassName);
    static CObject* PASCAL CreateObject(LPCWSTR lpszClassName);
};

// The root of the framework's classes: run-time class, validity check and dump. Objects are not copyable.
class QFX_API CObject
{
public:
    virtual ~CObject();

    // The record of the object's own class.
    virtual CRuntimeClass* GetRuntimeClass() const;
    // Whether the object is of class `pClass` or of one derived from it.
    BOOL IsKindOf(const CRuntimeClass* pClass) const;
    // Whether the class was declared serialisable.
    BOOL IsSerializable() const;
    // Checks the object's own state with ASSERTs; derived classes call their base first.
    virtual void AssertValid() const;
    // Writes the object's state for a person; derived classes call their base first.
    virtual void Dump(CDumpContext& dc) const;
    // Reads or writes the object's state; the base has none.
    virtual void Serialize(CArchive& ar);

    static CRuntimeClass* PASCAL GetThisClass();
    static AFX_DATA CRuntimeClass classCObject;

protected:
    CObject() {}
    static CRuntimeClass* PASCAL _GetBaseClass();

private:
    CObject(const CObject&) = delete;
    CObject& operator=(const CObject&) = delete;
};

// The record of a class that has one.
#define RUNTIME_CLASS(class_name) (class_name::GetThisClass())

// `pObject` when it is not NULL and of class `pClass`, else NULL.
QFX_API CObject* AFXAPI AfxDynamicDownCast(CRuntimeClass* pClass, CObject* pObject);
// `pObject`; asserts that it is NULL or of class `pClass`.
QFX_API CObject* AFXAPI AfxStaticDownCast(CRuntimeClass* pClass, CObject* pObject);

inline const CObject* AfxDynamicDownCast(CRuntimeClass* pClass, const CObject* pObject)
{
    return AfxDynamicDownCast(pClass, const_cast<CObject*>(pObject));
}
inline const CObject* AfxStaticDownCast(CRuntimeClass* pClass, const CObject* pObject)
{
    return AfxStaticDownCast(pClass, const_cast<CObject*>(pObject));
}

// The object as `class_name*`: NULL when it is of another class.
#define DYNAMIC_DOWNCAST(class_name, object)                                                                 \
    (static_cast<class_name*>(AfxDynamicDownCast(RUNTIME_CLASS(class_name), object)))
// The object as `class_name*`: the class is only asserted.
#ifdef _DEBUG
#define STATIC_DOWNCAST(class_name, object)                                                                  \
    (static_cast<class_name*>(AfxStaticDownCast(RUNTIME_CLASS(class_name), object)))
#else
#define STATIC_DOWNCAST(class_name, object) (static_cast<class_name*>(object))
#endif

// In the class: gives it a run-time class record.
#define DECLARE_DYNAMIC(class_name)                                                                          \
protected:                                                                                                   \
    static CRuntimeClass* PASCAL _GetBaseClass();                                                            \
                                                                                                             \
public:                                                                                                      \
    static AFX_DATA CRuntimeClass class##class_name;                                                         \
    static CRuntimeClass* PASCAL GetThisClass();                                                             \
    virtual CRuntimeClass* GetRuntimeClass() const;

// In the class: as DECLARE_DYNAMIC, and objects can be created by their record. Needs a default constructor,
// which may be protected.
#define DECLARE_DYNCREATE(class_name)                                                                        \
    DECLARE_DYNAMIC(class_name)                                                                              \
    static CObject* PASCAL CreateObject();

#define IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, wSchema, pfnNew)                                 \
    CRuntimeClass* PASCAL class_name::_GetBaseClass()                                                        \
    {                                                                                                        \
        return RUNTIME_CLASS(base_class_name);                                                               \
    }                                                                                                        \
    AFX_DATADEF CRuntimeClass                                                                                \
        class_name::class##class_name = {#class_name, static_cast<int>(sizeof(class_name)), wSchema,         \
                                         pfnNew,      &class_name::_GetBaseClass,           NULL};           \
    CRuntimeClass* PASCAL class_name::GetThisClass()                                                         \
    {                                                                                                        \
        return &class_name::class##class_name;                                                               \
    }                                                                                                        \
    CRuntimeClass* class_name::GetRuntimeClass() const                                                       \
    {                                                                                                        \
        return &class_name::class##class_name;                                                               \
    }                                                                                                        \
    static const AFX_CLASSINIT _init_##class_name(&class_name::class##class_name);

// In one source file: defines what the DECLARE_ macro of the same name declares.
#define IMPLEMENT_DYNAMIC(class_name, base_class_name)                                                       \
    IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, 0xFFFF, NULL)
#define IMPLEMENT_DYNCREATE(class_name, base_class_name)                                                     \
    CObject* PASCAL class_name::CreateObject()                                                               \
    {                                                                                                        \
        return new class_name;                                                                               \
    }                                                                                                        \
    IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, 0xFFFF, &class_name::CreateObject)
