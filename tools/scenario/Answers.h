#pragma once

#include "tools/scenario/ScriptError.h"

#include <deque>
#include <map>
#include <string>
#include <vector>

namespace sw::scripted {

// The answers a script holds for the questions the logic will ask, one queue
// for each kind of question (open, save, box, input, and those of the dialogs).
class Answers {
public:
    using Tokens = std::vector<std::string>;

    void Add(const std::string& kind, Tokens answer) { queues_[kind].push_back(std::move(answer)); }

    // The next answer of that kind, all its words; a ScriptError naming
    // `question` when none is left.
    Tokens TakeTokens(const std::string& kind, const std::string& question) {
        auto& queue = queues_[kind];
        if (queue.empty()) {
            throw ScriptError("the script holds no '" + kind + "' answer for: " + question);
        }
        Tokens answer = queue.front();
        queue.pop_front();
        return answer;
    }

    // The next answer of that kind that is a single word.
    std::string Take(const std::string& kind, const std::string& question) {
        Tokens answer = TakeTokens(kind, question);
        if (answer.size() != 1) {
            throw ScriptError("a '" + kind + "' answer takes one word, for: " + question);
        }
        return answer.front();
    }

    // Throws when answers are left unused at the end of a script.
    void CheckAllUsed() const {
        for (const auto& [kind, queue] : queues_) {
            if (!queue.empty()) {
                throw ScriptError("the script ended with " + std::to_string(queue.size()) +
                                  " unused '" + kind + "' answer(s), the first \"" +
                                  queue.front().front() + "\"");
            }
        }
    }

private:
    std::map<std::string, std::deque<Tokens>> queues_;
};

} // namespace sw::scripted
