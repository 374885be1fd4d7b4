// SPDX-License-Identifier: MIT
// The link without an engine: one of a few lines says what a table tells it to.
#include "matlab_link/link.h"

#include "files/work_folder.h"
#include "generator/generator_fixture.h"
#include "generator/send_to_matlab.h"
#include "matlab_link/answer_reader.h"

namespace quorvane::testing {
namespace {

namespace fs = std::filesystem;

/// An engine whose clock only goes while nothing comes from it.
struct EngineDesktop : ScriptedDesktop {
    std::deque<std::string> Says;  ///< What each script makes it say
    std::size_t Cut = 0;           ///< The bytes are handed out in two halves, parted here
    bool Escape = false;
    testing::Texts Trace;  ///< What happens, in its order
    std::size_t Given = 0;
    std::string File;

    void StartEngine(const std::string&, const std::vector<std::string>&) override {
        runs_ = true;
        Says.push_front("{b}{e}");
    }
    bool EngineRuns() override { return runs_; }
    void WriteEngine(const std::string& bytes) override {
        asked_ = now_;
        if (bytes.starts_with("addpath(")) return;
        const auto call = Split(bytes, '\'');
        if (call.size() < 4) {
            Trace.push_back(">" + bytes);
            Trace.back() = Replaced(Trace.back(), token_, "TOKEN");
        } else {
            token_ = call[0].substr(4, call[0].size() - 8);
            File = call[1];
            Trace.push_back("run " + ReadAll(File));
            parts_ = Split(Says.empty() ? "" : Spoken(Says.front(), std::stoi(call[3])), '^');
            if (!Says.empty()) Says.pop_front();
        }
        if (parts_.empty()) return;
        pending_ += parts_.front();
        parts_.erase(parts_.begin());
    }
    EngineNews WaitForEngine() override {
        LookAfterFigures();
        const auto state = "~" + frmTextResults.lblState.Caption;
        if (state != "~" && Trace.back() != state) Trace.push_back(state);
        EngineNews news;
        const auto most = Given < Cut ? Cut - Given : pending_.size();
        news.Bytes = pending_.substr(0, std::min(most, pending_.find('{')));
        pending_.erase(0, news.Bytes.size());
        Given += news.Bytes.size();
        if (pending_.starts_with('{')) {
            End(news, pending_[1] == 's', std::atoi(pending_.c_str() + pending_.find(' ')));
        } else if (news.Bytes.empty()) {
            now_ += 200;
            news.Escape = std::exchange(Escape, false);
            if (now_ > asked_ + 60000) End(news, false, 99);
        }
        return news;
    }
    void KillEngine() override { pending_ = "{signal 9}"; }
    std::int64_t Milliseconds() override { return now_; }
    std::string InputBox(const std::string& prompt, const std::string& title,
                         const std::string& text) override {
        Trace.push_back("?" + prompt);
        return ScriptedDesktop::InputBox(prompt, title, text);
    }
    Answer MsgBox(const Message& message) override {
        Trace.push_back("!" + message.Text);
        return ScriptedDesktop::MsgBox(message);
    }

private:
    void End(EngineNews& news, bool crashed, int code) {
        runs_ = false;
        pending_.clear();
        parts_.clear();
        now_ += 4000;
        news.Ended = true;
        news.Crashed = crashed;
        news.Code = code;
    }
    std::string Spoken(std::string text, int id) const {
        for (const std::string kind : {"b", "e", "u"}) {
            const auto mark = "\n\1" + token_ + kind + ":";
            text = Replaced(text, "{" + kind + "}", mark + std::to_string(id) + "\1");
            text = Replaced(text, "{-" + kind + "}", mark + std::to_string(id - 1) + "\1");
        }
        text = Replaced(text, "{f}", "\n\1" + token_ + "f:\1");
        text = Replaced(text, "{p}", "\1" + token_ + "p:\1");
        text = Replaced(text, "{file}", File);
        for (auto at = text.find("{i "); at != std::string::npos; at = text.find("{i ")) {
            text.replace(text.find('}', at), 1, "\1");
            text.replace(at, 3, "\1" + token_ + "i:");
        }
        return text;
    }

    bool runs_ = false;
    std::string token_;
    std::string pending_;
    std::vector<std::string> parts_;  ///< Each waits for a line from the link
    std::int64_t now_ = 0, asked_ = 0;
};

struct LinkTest : GeneratorTest {
    EngineDesktop screen;

    void SetUp() override {
        GeneratorTest::SetUp();
        desktop = &screen;
    }
    std::string Send(const std::string& script, const LineBoxes& boxes = {}) {
        std::string answer;
        const int error = RaisedError([&] {
            LinkExecute(script, boxes);
            LinkOpen();
            answer = LinkRequest();
        });
        return error == 0 ? answer : "error " + std::to_string(error);
    }
    std::string Answer(const std::string& sent) {
        if (sent == "END" || sent == "BREAK") return LinkFinish(sent == "END");
        if (sent == "IDLE") return LookAfterFigures(), "";
        if (sent == "START") return StartLink("octave"), "";
        const auto colon = sent.find_first_not_of("0123456789 ");
        if (colon == 0 || colon >= sent.size() || sent[colon] != ':') return Send(sent);
        const auto boxes = Numbers(sent.substr(0, colon));
        return Send(sent.substr(colon + 1), {boxes.begin(), boxes.end()});
    }
    /// Plays a row with its bytes cut at a place, and returns how many there were.
    std::size_t Play(const Texts& row, std::size_t cut) {
        if (!screen.EngineRuns()) StartLink("octave");
        const auto says = Split(row[2], '|'), typed = Split(row[3], '|');
        screen.Says.assign(says.begin(), says.end());
        screen.Texts.assign(typed.begin(), typed.end());
        screen.Escape = row[3] == "escape";
        screen.Trace.clear();
        screen.Given = 0;
        screen.Cut = cut;
        for (const auto& sent : Split(row[1], '|')) {
            const auto answer = Answer(sent);
            screen.Trace.push_back("=" + answer);
        }
        EXPECT_EQ(Joined(screen.Trace, "|"), row[4]) << "cut at " << cut;
        EXPECT_EQ(frmTextResults.lblState.Caption, "");
        LinkFinish(false);
        return screen.Given;
    }
};

TEST_F(LinkTest, ConversationsCutAnywhere) {
    for (auto row : ReadTable("matlab_link/link.tsv")) {
        SCOPED_TRACE(row.back() + " " + row[0]);
        for (auto& cell : row) cell = Replaced(cell, "{1}", "\1");
        const auto size = Play(row, 0);
        for (std::size_t cut = 1; cut < size && !HasFailure(); ++cut) Play(row, cut);
    }
}

TEST_F(LinkTest, AFloodIsCountedBeyondItsLimit) {
    const std::string kept(AnswerLimit, 'x');
    const Texts row = {"", "x", "{b}" + kept + std::string(1000, 'y') + "{e}", "",
                       "run x|=" + kept + "\n... 1000 bytes more\n"};
    const auto size = Play(row, 0);
    for (const auto cut : {AnswerLimit, size - 50, size - 25, size - 2}) Play(row, cut);
}

TEST_F(LinkTest, NothingIsLeftBehind) {
    screen.Says = {"{exit 1}"};
    StartLink("octave");
    EXPECT_EQ(Answer("x"), "Matlab has ended with exit code 1.\n");
    EXPECT_FALSE(fs::exists(screen.File)) << "the script";
    const auto folder = fs::path(screen.File).parent_path();
    EXPECT_EQ(fs::status(folder).permissions(), fs::perms::owner_all);
    StartLink("matlab");
    EXPECT_FALSE(fs::exists(folder)) << "the former engine's folder";
    EXPECT_FALSE(fs::exists(fs::path(screen.File).parent_path() / "system_dependent.m"));
    fs::remove_all(fs::path(screen.File).parent_path());
    EXPECT_EQ(Answer("x"), "The script could not be written: No such file or directory.\n");
    StartLink("matlab");
    ResetLink();
    EXPECT_FALSE(fs::exists(fs::path(screen.File).parent_path()));
    EXPECT_EQ(Answer("x"), "error 282");
}

}  // namespace
}  // namespace quorvane::testing
