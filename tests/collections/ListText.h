// Shows the state of a list as one line, so that tests compare it at a glance.
#pragma once

#include "grid/collections/List.h"

#include <sstream>
#include <string>
#include <vector>

// "1 2 3 | cur 0": the elements and the cursor index.
inline std::string Show(const QuorUiCtr::List<long>& list)
{
    std::ostringstream text;
    for (long element : list)
        text << element << ' ';
    text << "| cur " << list.GetCur();
    return text.str();
}

// The same for a list of pointers to objects with a field `number`; a null slot shows as "-".
template <class Object> std::string ShowObjects(const QuorUiCtr::List<Object*>& list)
{
    std::ostringstream text;
    for (const Object* object : list)
    {
        if (object != nullptr)
            text << object->number << ' ';
        else
            text << "- ";
    }
    text << "| cur " << list.GetCur();
    return text.str();
}

inline void Fill(QuorUiCtr::Table<long>& table, const std::vector<long>& elements)
{
    for (long element : elements)
        table.Append(element);
}
