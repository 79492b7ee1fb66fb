// All fields of a card, by the names that its type information lists, so that no field is left out.
#pragma once

#include <comutil.h>
#include <ole2.h>
#include <windows.h>

#include <string>
#include <vector>

namespace lejis_client {

struct CardField {
    std::wstring name;
    // A text, a flag, a number, a date, Null or an object; what a holder holds stands for the holder.
    _variant_t value;
};

// In the order of the type library. Raises a LibraryError.
std::vector<CardField> FieldsOf(IDispatch* card);

}  // namespace lejis_client
