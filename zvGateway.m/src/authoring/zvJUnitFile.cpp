#include <cstdio>

#include "zvConsole.h"
#include "zvFailure.h"
#include "zvReplacedFile.h"
#include "zvTestReport.h"
#include "zvUtf8.h"
#include "zvXMLParser.h"

namespace {

// A text that an XML file can hold.
zvString toXml(const std::string& printable) {
    zvString text(printable.c_str());
    if (zvXMLParser::isXMLText(text)) {
        return text;
    }
    zvString held;
    for (int i = 0; i < text.size(); ++i) {
        constexpr wchar16 firstDoubtful = 0xD800;
        held += text[i] < firstDoubtful ? zvString(text[i]) : zvString("?");
    }
    return held;
}

zvString toText(double seconds) {
    char text[32];
    std::snprintf(text, sizeof text, "%.6f", seconds);
    return text;
}

void addNumbers(zvXMLParser& document, std::size_t cases, std::size_t failed) {
    document.addAttribute("tests", std::to_string(cases).c_str());
    document.addAttribute("failures", std::to_string(failed).c_str());
}

void addFailure(zvXMLParser& document, const zvCaseResult& result) {
    std::string text;
    for (const zvCaseDifference& difference : result.differences) {
        text += difference.text() + "\n";
    }
    for (const std::string& line : result.evaluation) {
        text += "  " + line + "\n";
    }
    document.addStartTag("failure");
    document.addAttribute("message", toXml(result.differences.front().text()));
    document.addMemberValue(toXml(text));
    document.addEndTag();
}

}  // namespace

void zvTestReport::writeJUnit(const std::string& path) const {
    zvXMLParser document;
    document.createXMLTree("testsuites");
    for (const File& file : m_files) {
        const zvString name = toXml(zvConsole::printable(file.name.c_str()));
        document.addStartTag("testsuite");
        document.addAttribute("name", name);
        addNumbers(document, file.cases.size(), file.failed);
        for (const Entry& entry : file.cases) {
            document.addStartTag("testcase");
            document.addAttribute("classname", name);
            document.addAttribute("name", toXml(entry.name));
            document.addAttribute("file", name);
            document.addAttribute("line", std::to_string(entry.line).c_str());
            document.addAttribute("time", toText(entry.seconds));
            if (!entry.result.isPassed()) {
                addFailure(document, entry.result);
            }
            document.addEndTag();
        }
        document.addEndTag();
    }
    zvString text;
    if (!document.writeTreeToString(text, "UTF-8")) {
        throw zvProgramFailure{zvExitCode::usage, "output", zvConsole::printable(path.c_str()),
                               "the document could not be made"};
    }
    zvReplacedFile::write(path, zvUtf8::encode(text));
}
