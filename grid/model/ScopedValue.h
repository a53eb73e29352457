// ScopedValue: another value in a variable for the length of a scope.
#pragma once

namespace QuorUiCtr
{

// Puts the old value back at the end of the scope, also when a hook throws. The variable must live until
// then.
template <class T> class ScopedValue
{
public:
    ScopedValue(T& variable, T value) : place(variable), before(variable) { variable = value; }
    ~ScopedValue() { place = before; }
    ScopedValue(const ScopedValue&) = delete;
    ScopedValue& operator=(const ScopedValue&) = delete;

private:
    T& place;
    T before;
};

} // namespace QuorUiCtr
