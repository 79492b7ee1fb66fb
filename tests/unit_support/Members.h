// The members of a public class as automation clients see them: by name.
#pragma once

#include "platform/com/Collection.h"

#include <gtest/gtest.h>

#include <oaidl.h>

#include <string>
#include <vector>

namespace support {

using Names = std::vector<const wchar_t*>;

std::wstring TextMember(IDispatch* object, const wchar_t* name);

// Gives each text member a text of its own, made of the member's name.
void FillTexts(IDispatch* object, const Names& names);
std::wstring FillingOf(const wchar_t* name);

void ExpectEmptyTexts(IDispatch* object, const Names& names);

// Each member is empty at first, keeps a text of its own beside those of the others, and is emptied by no text.
void ExpectTextFields(IDispatch* object, const Names& names);

// The member is false at first and takes any value but 0 as true.
void ExpectFlagField(IDispatch* object, const wchar_t* name);

// The members exist and stand in this order in the type library.
testing::AssertionResult MembersInOrder(IDispatch* object, const Names& names);

// The texts of a collection that holds nothing else.
std::vector<std::wstring> Texts(const platform::Collection& collection);

}  // namespace support
