// PropertyGridWatch: the list of those who want to know that an object goes.
#include "propertygrid/PropertyGridWatch.h"

PropertyGridWatch::PropertyGridWatch(PropertyGridWatch*& first) : m_head(&first), m_next(first)
{
    first = this;
}

PropertyGridWatch::~PropertyGridWatch()
{
    // The watches of an object are on one stack: this one is the first of the list.
    if (m_head != nullptr)
        *m_head = m_next;
}

void PropertyGridWatch::TellAll(PropertyGridWatch*& first)
{
    for (PropertyGridWatch* watch = first; watch != nullptr; watch = watch->m_next)
        watch->m_head = nullptr;
    first = nullptr;
}
