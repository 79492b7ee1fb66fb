#include "commandline/ParseCommandLine.h"

#include "commandline/DidYouMean.h"
#include "commandline/Environment.h"
#include "commandline/Option.h"
#include "commandline/Requirements.h"
#include "commandline/UsageError.h"
#include "files/FileList.h"

#include <algorithm>

namespace lejis_client {
namespace {

using Arguments = std::vector<std::wstring>;

constexpr wchar_t kEndOfOptions[] = L"--";

bool IsOption(const std::wstring& argument) { return argument.starts_with(L'-') && argument != kStandardInput; }

class Parser {
public:
    explicit Parser(const Arguments& arguments) : arguments_(arguments) { line_.json = AsksForJson(arguments); }

    CommandLine Parse() {
        while (place_ < arguments_.size() && !line_.help && !line_.version) TakeArgument();
        if (line_.help || line_.version) return line_;
        if (!line_.command) Throw(L"no command given");
        line_.doctor.variables = TakeEnvironment(line_, given_);
        CheckRequirements(line_, given_);
        return line_;
    }

private:
    [[noreturn]] void Throw(const std::wstring& reason) const {
        throw UsageError{reason, line_.command ? line_.command->name : L""};
    }

    Action CurrentAction() const { return line_.command ? line_.command->action : kNoCommand; }

    void TakeArgument() {
        const std::wstring& argument = arguments_[place_];
        if (line_.command && argument == kEndOfOptions) {
            line_.operands.insert(line_.operands.end(), arguments_.begin() + static_cast<std::ptrdiff_t>(place_) + 1,
                                  arguments_.end());
            place_ = arguments_.size();
            return;
        }
        if (IsOption(argument)) return TakeOption(argument);
        ++place_;
        if (line_.command) return line_.operands.push_back(argument);
        line_.command = FindCommand(argument);
        if (!line_.command) Throw(L"unknown command " + argument + CommandThatWasMeant(argument));
    }

    // With its value after an equals sign or in the next argument.
    void TakeOption(const std::wstring& argument) {
        const std::size_t equals = argument.find(L'=');
        const std::wstring name = argument.substr(0, equals);
        const Option* const option = FindOption(CurrentAction(), name);
        if (!option) Throw(L"unknown option " + name + OptionThatWasMeant(name, CurrentAction()));
        if (!option->mayRepeat && given_.contains(option)) Throw(name + L" is given twice");
        given_.insert(option);
        ++place_;
        std::wstring value;
        if (equals != std::wstring::npos) {
            if (!option->value) Throw(name + L" takes no value");
            value = argument.substr(equals + 1);
        } else if (option->value) {
            if (place_ == arguments_.size() || arguments_[place_].starts_with(kLongPrefix)) {
                Throw(name + L" needs a value");
            }
            value = arguments_[place_++];
        }
        const std::wstring complaint = option->take(line_, value);
        if (!complaint.empty()) Throw(name + L": " + complaint);
    }

    const Arguments& arguments_;
    std::size_t place_ = 0;
    GivenOptions given_;
    CommandLine line_;
};

}  // namespace

bool AsksForJson(const Arguments& arguments) {
    const auto end = std::find(arguments.begin(), arguments.end(), kEndOfOptions);
    return std::find(arguments.begin(), end, kJsonOption) != end;
}

CommandLine ParseCommandLine(const Arguments& arguments) { return Parser(arguments).Parse(); }

}  // namespace lejis_client
