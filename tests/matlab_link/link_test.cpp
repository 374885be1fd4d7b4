// SPDX-License-Identifier: MIT
// The link without an engine: one of a few lines says what a table tells it to.
#include "matlab_link/link.h"

#include "files/work_folder.h"
#include "generator/generator_fixture.h"
#include "generator/send_to_matlab.h"
#include "matlab_link/answer_reader.h"
#include "matlab_link/run_report.h"

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
    std::string Folder;  ///< That holds our functions

    void StartEngine(const std::string&, const std::vector<std::string>&) override {
        runs_ = over_ = true;
        needs_ = 0;
        Folder.clear();
        Says.push_front("{b}{e}");
    }
    bool EngineRuns() override { return runs_; }
    void InterruptEngine() override { Trace.push_back("interrupt"); }
    void WriteEngine(const std::string& bytes) override {
        asked_ = now_;
        if (bytes.starts_with("\ntry,")) {
            Called(bytes);
        } else if (needs_ > 0) {
            EXPECT_EQ(bytes.size(), needs_);
            EXPECT_NE(bytes.find("function " + token_ + "loop"), std::string::npos);
            EXPECT_EQ(bytes.find("TOKEN"), std::string::npos);
            needs_ = 0;
            Folder = "none";
        } else {
            Asked(bytes);
        }
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
    /// The loop answers unless a script keeps the engine; without our functions it asks for them.
    void Called(const std::string& bytes) {
        Trace.push_back("call");
        const auto end = bytes.find("loop(");
        token_ = bytes.substr(5, end - 5);
        const auto folder = bytes.find("addpath('"), size = bytes.find(",0,");
        if (folder != std::string::npos) Folder = Split(bytes.substr(folder), '\'')[1];
        SayNext();
        if (!over_) return;
        const bool knows = !Folder.empty();
        if (!knows) needs_ = std::stoul(bytes.substr(size + 3));
        Say(knows ? "{l " + std::to_string(std::stoi(bytes.substr(end + 5))) + "}" : "{h}");
    }
    void Asked(const std::string& bytes) {
        ASSERT_TRUE(bytes.starts_with(token_)) << bytes;
        const auto lineEnd = bytes.find('\n');
        const auto numbers = Numbers(bytes.substr(token_.size() + 2, lineEnd - token_.size() - 2));
        ASSERT_EQ(static_cast<std::size_t>(numbers.at(0)), bytes.size() - lineEnd - 1) << bytes;
        const char kind = bytes[token_.size()];
        const auto text = bytes.substr(lineEnd + 1, bytes.size() - lineEnd - 2);
        if (kind != 'r') {
            Trace.push_back(kind == 'a' ? ">" + text : kind == 'd' ? "draw" : "define");
            return kind == 'd' ? void() : SayNext();
        }
        Trace.push_back("run " + text);
        for (std::size_t i = 2; i < numbers.size(); ++i) {
            Trace.back() += " ?" + std::to_string(numbers[i]);
        }
        script_ = numbers.at(1);
        parts_ = Split(Says.empty() ? "" : Says.front(), '^');
        if (!Says.empty()) Says.pop_front();
        over_ = false;
        SayNext();
    }
    void SayNext() {
        if (parts_.empty()) return;
        Say(parts_.front());
        parts_.erase(parts_.begin());
    }
    void Say(const std::string& text) {
        if (text.find("{e}") != std::string::npos || text.find("{u}") != std::string::npos) {
            over_ = true;
        }
        pending_ += Spoken(text);
    }
    void End(EngineNews& news, bool crashed, int code) {
        runs_ = false;
        pending_.clear();
        parts_.clear();
        now_ += 4000;
        news.Ended = true;
        news.Crashed = crashed;
        news.Code = code;
    }
    /// Marks in braces become those of the engine; "{exit 3}" and "{signal 9}" stay.
    std::string Spoken(const std::string& text) const {
        std::string spoken;
        for (std::size_t at = 0; at < text.size();) {
            const auto open = std::min(text.find('{', at), text.size());
            spoken.append(text, at, open - at);
            at = open;
            if (at == text.size()) break;
            const auto end = text.find('}', at);
            const auto inside = text.substr(at + 1, end - at - 1);
            const auto kind = inside.starts_with('-') ? inside.substr(1, 1) : inside.substr(0, 1);
            if (kind == "s" || inside.starts_with("exit")) {
                spoken += text[at++];
                continue;
            }
            const bool isQuestion = kind == "i" || kind == "p";
            spoken += (isQuestion ? "\1" : "\n\1") + token_ + kind + ":";
            if (kind == "b" || kind == "e") {
                spoken += std::to_string(inside.size() > 1 ? script_ - 1 : script_);
            } else if (inside.size() > 2) {
                spoken += inside.substr(2);
            }
            spoken += "\1\n";
            at = end + 1;
        }
        return spoken;
    }

    bool runs_ = false;
    bool over_ = true;       ///< No script keeps the engine
    std::size_t needs_ = 0;  ///< The size of the definitions that it waits for
    std::string token_;
    std::string pending_;
    std::vector<std::string> parts_;  ///< Each waits for something from the link
    int script_ = 0;
    std::int64_t now_ = 0, asked_ = 0;
};

/// What stands in the report of a run: each box with its state, and its message or value.
std::string Report() {
    static const char* const states[] = {"", " runs", " done", " failed"};
    Texts told;
    for (int i = 1; i <= MaxBoxes; ++i) {
        const auto& box = linkReport.Of[i];
        if (box.State == BoxRun::None) continue;
        told.push_back(std::to_string(i) + states[static_cast<int>(box.State)]);
        if (!box.Message.empty()) told.back() += " " + box.Message;
        if (!box.Value.empty()) told.back() += "=" + box.Value;
        for (const double point : box.Points) told.back() += " " + std::to_string(point);
    }
    return Joined(told, ",");
}

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
    std::size_t Play(const Texts& row, std::size_t cut, bool listens = false) {
        if (!screen.EngineRuns()) StartLink("octave");
        const auto says = Split(row[2], '|'), typed = Split(row[3], '|');
        screen.Says.assign(says.begin(), says.end());
        screen.Texts.assign(typed.begin(), typed.end());
        screen.Escape = row[3] == "escape";
        screen.Trace.clear();
        screen.Given = 0;
        screen.Cut = cut;
        BeginReport(0);
        linkReport.wantsValues = row[0].starts_with("values");
        std::string heard;
        if (listens) linkListener.Printed = [&](const std::string& text) { heard += text; };
        for (const auto& sent : Split(row[1], '|')) {
            const auto answer = Answer(sent);
            screen.Trace.push_back("=" + std::exchange(heard, "") + answer);
        }
        linkListener = {};
        EXPECT_EQ(Joined(screen.Trace, "|"), row[4]) << "cut at " << cut;
        EXPECT_EQ(frmTextResults.lblState.Caption, "");
        EXPECT_EQ(Report(), row[5]);
        LinkFinish(false);
        return screen.Given;
    }
};

TEST_F(LinkTest, ConversationsCutAnywhere) {
    for (auto row : ReadTable("matlab_link/link.tsv")) {
        SCOPED_TRACE(row.back() + " " + row[0]);
        for (auto& cell : row) cell = Replaced(cell, "{1}", "\1");
        const auto size = Play(row, 0);
        for (std::size_t cut = 1; cut < size && !HasFailure(); ++cut) {
            Play(row, cut);
            // A note at the end of a run stands before what is printed then.
            if (row[4].find("never closed") == std::string::npos) Play(row, cut, true);
        }
    }
}

TEST_F(LinkTest, AFloodIsCountedBeyondItsLimit) {
    const std::string kept(AnswerLimit, 'x');
    const Texts row = {"",
                       "x",
                       "{b}" + kept + std::string(1000, 'y') + "{e}",
                       "",
                       "run x|=" + kept + "\n... 1000 bytes more\n",
                       ""};
    const auto size = Play(row, 0);
    for (const auto cut : {AnswerLimit, size - 50, size - 25, size - 2}) Play(row, cut);
}

TEST_F(LinkTest, FunctionsInAFolderGoWithTheirEngine) {
    StartLink("matlab");
    const fs::path folder = screen.Folder;
    EXPECT_EQ(fs::status(folder).permissions(), fs::perms::owner_all);
    EXPECT_TRUE(fs::exists(folder / "input.m"));
    EXPECT_FALSE(fs::exists(folder / "system_dependent.m"));
    screen.Says = {"{exit 1}"};
    EXPECT_EQ(Answer("x"), "Matlab has ended with exit code 1.\n");
    StartLink("octave");
    EXPECT_FALSE(fs::exists(folder)) << "the former engine's";
    StartLink("matlab");
    ResetLink();
    EXPECT_FALSE(fs::exists(screen.Folder));
    EXPECT_EQ(Answer("x"), "error 282");
}

}  // namespace
}  // namespace quorvane::testing
