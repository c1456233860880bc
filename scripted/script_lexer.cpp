#include "scripted/script_lexer.h"

#include <algorithm>

#include "kvopt/platform/transcript.h"
#include "kvopt/text/kv_std_string.h"

namespace kvopt {

namespace {

constexpr std::string_view kBlanks = " \t";

char ResolveEscape(std::string_view line, std::size_t at) {
    switch (at < line.size() ? line[at] : '\0') {
        case 'n':
            return '\n';
        case 't':
            return '\t';
        case '"':
            return '"';
        case '\\':
            return '\\';
        default:
            throw ScriptFault{
                at, R"(one of \" \\ \n \t in quotes)",
                at < line.size() ? "\\" + std::string(1, line[at]) : "the end of the line"};
    }
}

ScriptWord ReadQuoted(std::string_view line, std::size_t& at) {
    ScriptWord word{"", true, at + 1};
    for (++at; at < line.size(); ++at) {
        if (line[at] == '"') {
            ++at;
            return word;
        }
        word.text += line[at] == '\\' ? ResolveEscape(line, ++at) : line[at];
    }
    throw ScriptFault{word.column, "a closing quote", "the end of the line"};
}

}  // namespace

std::vector<ScriptWord> SplitScriptLine(std::string_view line) {
    std::vector<ScriptWord> words;
    std::size_t at = 0;
    while ((at = line.find_first_not_of(kBlanks, at)) != std::string_view::npos &&
           line[at] != '#') {
        if (line[at] == '"') {
            words.push_back(ReadQuoted(line, at));
        } else {
            const std::size_t end = std::min(line.find_first_of(" \t\"#", at), line.size());
            words.push_back({std::string(line.substr(at, end - at)), false, at + 1});
            at = end;
        }
        if (at < line.size() && kBlanks.find(line[at]) == std::string_view::npos &&
            line[at] != '#') {
            throw ScriptFault{at + 1, "a blank between words", std::string(line.substr(at))};
        }
    }
    return words;
}

std::string QuoteForScript(std::string_view text) {
    return Transcript::Quote(KvStdString::ToWide(text));
}

std::string QuoteForScript(const std::vector<std::string>& texts) {
    std::string list;
    for (const std::string& text : texts) {
        list += (list.empty() ? "" : ", ") + QuoteForScript(text);
    }
    return list.empty() ? "none" : list;
}

}  // namespace kvopt
