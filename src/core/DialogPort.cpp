#include "core/DialogPort.h"

#include "core/GameError.h"

namespace zorvane {

namespace {

std::string oneLine(const std::string& text) {
    std::string out;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') {
            out += " | ";
            ++i;
        } else if (text[i] == '\n' || text[i] == '\r') {
            out += " | ";
        } else {
            out += text[i];
        }
    }
    return out;
}

bool offers(Buttons b, Answer a) {
    switch (b) {
    case Buttons::Ok:
        return a == Answer::Ok;
    case Buttons::YesNo:
        return a == Answer::Yes || a == Answer::No;
    case Buttons::YesNoCancel:
        return a != Answer::Ok;
    }
    return false;
}

} // namespace

std::string ScriptedDialogs::answerWord(Answer a) {
    switch (a) {
    case Answer::Yes:
        return "yes";
    case Answer::No:
        return "no";
    case Answer::Cancel:
        return "cancel";
    case Answer::Ok:
        return "ok";
    }
    return "?";
}

void ScriptedDialogs::transcript(const std::string& line) {
    if (onTranscript)
        onTranscript(line);
}

Answer ScriptedDialogs::ask(const std::string& text, Buttons buttons) {
    asked.push_back(text);
    Answer a;
    if (!answers.empty()) {
        a = answers.front();
        answers.pop_front();
        // A queued answer the box does not offer falls back to the box's default.
        if (!offers(buttons, a))
            a = offers(buttons, Answer::Cancel) ? Answer::Cancel
                : offers(buttons, Answer::No)   ? Answer::No
                                                : Answer::Ok;
    } else {
        a = offers(buttons, Answer::Cancel) ? Answer::Cancel
            : offers(buttons, Answer::No)   ? Answer::No
                                            : Answer::Ok;
    }
    transcript("ask: " + oneLine(text) + " -> " + answerWord(a));
    return a;
}

std::string ScriptedDialogs::input(const std::string& prompt, const std::string&,
                                   const std::string&) {
    std::string text;
    if (!inputs.empty()) {
        text = inputs.front();
        inputs.pop_front();
    }
    transcript("input: " + oneLine(prompt) + " -> " + text);
    return text;
}

std::string ScriptedDialogs::chooseFile(FileMode mode, const std::string&,
                                        const std::string& title) {
    std::string path;
    if (!files.empty()) {
        path = files.front();
        files.pop_front();
    }
    transcript(std::string(mode == FileMode::Open ? "open" : "save") + " file: " + oneLine(title) +
               " -> " + path);
    return path;
}

void endProcess(DialogPort& dialogs, const std::string& why) {
    dialogs.endProcess(why);
    throw ProcessEnded(why);
}

} // namespace zorvane
