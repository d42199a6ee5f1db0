#include <unicode/uchar.h>
#include <unicode/unistr.h>

#include "zvBenchmark.h"
#include "zvBenchmarkSubjects.h"
#include "zvCharString.h"
#include "zvString.h"

namespace {

std::string repeated(const std::string& piece, std::size_t bytes) {
    std::string text;
    while (text.size() + piece.size() <= bytes) {
        text += piece;
    }
    return text.append(bytes - text.size(), '.');
}

void conversion(const std::string& what, const std::string& text) {
    zvBenchmarkRow("narrow to wide to narrow, " + what)
        .ours([text] { return *zvCharString(zvString(text.c_str())).data(); })
        .peer("ICU", "1.0", [text] {
            std::string narrow;
            icu::UnicodeString::fromUTF8(text).toUTF8String(narrow);
            return narrow[0];
        });
}

int countOccurrences(const std::u16string& text, const std::u16string& word) {
    int count = 0;
    for (std::size_t at = text.find(word); at != std::u16string::npos;
         at = text.find(word, at + word.size())) {
        ++count;
    }
    return count;
}

int countOccurrences(const icu::UnicodeString& text, const icu::UnicodeString& word) {
    int count = 0;
    for (int at = text.indexOf(word); at >= 0; at = text.indexOf(word, at + word.length())) {
        ++count;
    }
    return count;
}

std::size_t replaceAll(std::u16string text, const std::u16string& from, const std::u16string& to) {
    std::u16string replaced;
    std::size_t copied = 0;
    for (std::size_t at = text.find(from); at != std::u16string::npos; at = text.find(from, copied)) {
        replaced.append(text, copied, at - copied).append(to);
        copied = at + from.size();
    }
    replaced.append(text, copied);
    text.swap(replaced);
    return text.size();
}

// The haystack, a word that occurs in it every 44 characters and one that occurs at its end only.
template <class Text>
struct Searched {
    Text text;
    Text word;
    Text lastWord;
    Text replacement;
};

template <class Text, class Make>
Searched<Text> searched(Make make) {
    const std::string text = repeated("the quick brown fox jumps over the lazy dog ", 65536 - 8) + "lazy cat";
    return {make(text), make("fox"), make("lazy cat"), make("badger")};
}

void search() {
    const auto ours = searched<zvString>([](const std::string& text) { return zvString(text.c_str()); });
    const auto standard = searched<std::u16string>(
        [](const std::string& text) { return std::u16string(text.begin(), text.end()); });
    const auto icu = searched<icu::UnicodeString>(
        [](const std::string& text) { return icu::UnicodeString::fromUTF8(text); });
    zvBenchmarkRow("find in 64 KiB")
        .ours([ours] { return ours.text.find(ours.lastWord); })
        .peer("std::u16string", "1.0", [standard] { return standard.text.find(standard.lastWord); })
        .peer("ICU", "1.0", [icu] { return icu.text.indexOf(icu.lastWord); });
    zvBenchmarkRow("count in 64 KiB")
        .ours([ours] { return ours.text.count(ours.word); })
        .peer("std::u16string", "1.0", [standard] { return countOccurrences(standard.text, standard.word); })
        .peer("ICU", "1.0", [icu] { return countOccurrences(icu.text, icu.word); });
    zvBenchmarkRow("replace in a copy of 64 KiB")
        .ours([ours] { return zvString(ours.text).replace(ours.word, ours.replacement); })
        .peer("std::u16string", "1.0",
              [standard] { return replaceAll(standard.text, standard.word, standard.replacement); })
        .peer("ICU", "1.0", [icu] {
            icu::UnicodeString text(icu.text);
            // A write forces the copy of the copy-on-write buffer.
            return text.findAndReplace(icu.word, icu.replacement).length();
        });
}

void letterCase() {
    const std::string upper = repeated("The Quick BROWN Fox Jumps Over The Lazy Dog ", 1024);
    std::string lower = upper;
    for (char& c : lower) {
        c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    }
    const zvString ours(upper.c_str());
    const auto icu = icu::UnicodeString::fromUTF8(upper);
    zvBenchmarkRow("equalsIgnoreCase of 1 KiB, ASCII")
        .ours([ours, other = zvString(lower.c_str())] { return ours.equalsIgnoreCase(other); })
        .peer("ICU", "1.0", [icu, other = icu::UnicodeString::fromUTF8(lower)] {
            return icu.caseCompare(other, U_FOLD_CASE_DEFAULT) == 0;
        });
    zvBenchmarkRow("toLower of a copy of 1 KiB, ASCII")
        .ours([ours] {
            zvString text(ours);
            text.toLower();
            return text[0];
        })
        .peer("ICU", "1.0", [icu] { return icu::UnicodeString(icu).toLower()[0]; });
}

}  // namespace

void zvTextBenchmark() {
    conversion("16 B, ASCII", "local_name_of_it");
    conversion("1 KiB, ASCII", repeated("the quick brown fox ", 1024));
    conversion("64 KiB, ASCII", repeated("the quick brown fox ", 65536));
    conversion("1 KiB, mixed UTF-8",
               repeated("plain, gr\u00fcn, \u0436\u0443\u043a, \u96f6\u4ef6, \U0001F600; ", 1024));
    search();
    letterCase();
}
