// PropertyGridWatch: tells code that calls the host whether a grid or a property still exists afterwards.
#pragma once

// Lives on the stack, in a list that begins in the watched object; the object marks the list when it goes.
class PropertyGridWatch
{
public:
    // `first` is the list in the watched object.
    explicit PropertyGridWatch(PropertyGridWatch*& first);
    ~PropertyGridWatch();
    PropertyGridWatch(const PropertyGridWatch&) = delete;
    PropertyGridWatch& operator=(const PropertyGridWatch&) = delete;

    bool IsGone() const { return m_head == nullptr; }

    // The object that owns the list goes.
    static void TellAll(PropertyGridWatch*& first);

private:
    PropertyGridWatch** m_head;
    PropertyGridWatch* m_next;
};
