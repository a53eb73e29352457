// TGKeyDescription: one line of the table of keys of an extra.
#pragma once

namespace QuorUiCtr
{

// What a key does, for documents and help texts.
struct TGKeyDescription
{
    // The keys as they are printed in documents, for example L"Ctrl+Home". Static.
    const wchar_t* keys;
    // What they do, in English. Static.
    const wchar_t* action;
};

} // namespace QuorUiCtr
