// Answers to searches, whole and plain: what a server might write in the ways that servers have.
#pragma once

#include <string>
#include <vector>

namespace fuzzing {

const std::vector<std::wstring>& AnswerTexts();

}  // namespace fuzzing
