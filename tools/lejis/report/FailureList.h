// What did not go through and why: the incidents under the messages that they share.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace lejis_client {

class FailureList {
public:
    // The outcome is the word for it: "refused".
    void Add(const std::wstring& outcome, const std::wstring& message, const std::wstring& name);
    bool IsEmpty() const { return names_.empty(); }

    // For people; the messages that most incidents share come first.
    std::wstring Text() const;

    using Reason = std::pair<std::wstring, std::wstring>;
    using Group = std::pair<Reason, std::vector<std::wstring>>;
    // In the same order.
    std::vector<Group> Groups() const;

private:
    std::map<Reason, std::vector<std::wstring>> names_;
};

}  // namespace lejis_client
