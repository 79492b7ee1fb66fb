#include "Result.h"

namespace kit {

Result NotRun(std::string reason) { return {kNotRun, std::move(reason)}; }

}  // namespace kit
