#include "zvPage.h"

#include "zvPageCss.h"
#include "zvPageJs.h"
#include "zvUtf8.h"

namespace {

const char* entityOf(char character) {
    switch (character) {
        case '&':
            return "&amp;";
        case '<':
            return "&lt;";
        case '>':
            return "&gt;";
        case '"':
            return "&quot;";
        case '\'':
            return "&#39;";
        default:
            return nullptr;
    }
}

bool standsInAnchor(char character) {
    const auto byte = static_cast<unsigned char>(character);
    return (byte >= '0' && byte <= '9') || (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z') ||
           byte == '_' || byte == '-' || byte >= 0x80;
}

std::string anchorPart(const zvString& name) {
    constexpr char digits[] = "0123456789ABCDEF";
    std::string result;
    for (const char character : zvUtf8::encode(name)) {
        if (standsInAnchor(character)) {
            result += character;
        } else {
            const auto byte = static_cast<unsigned char>(character);
            result += {'.', digits[byte / 16], digits[byte % 16]};
        }
    }
    return result;
}

std::string links(const std::vector<zvPage::Section>& sections) {
    std::string result = "<nav aria-label=\"Sections\">\n";
    for (const zvPage::Section& section : sections) {
        result += "<a href=\"#" + std::string(section.id) + "\">" + section.name + "</a>\n";
    }
    return result + "</nav>\n";
}

// Even what got through the escaping could run no script, have no style element, load nothing, and send
// nothing away. Browsers that know the two kinds of styles pass over the one that allows both; an attribute
// has a group's height, a picture's has colours.
std::string policy(const zvPage::Frame& frame) {
    return std::string("default-src 'none'; script-src ") + frame.script.hash +
           "; style-src 'unsafe-inline'; style-src-elem " + zvPageCssHash + " " + frame.style.hash +
           "; style-src-attr 'unsafe-inline'; base-uri 'none'; form-action 'none'";
}

std::string styleElement(const char* style) { return std::string("<style>\n") + style + "</style>\n"; }

}  // namespace

namespace zvPage {

const Part script{zvPageJs, zvPageJsHash};

std::string escaped(const zvString& text) {
    std::string result;
    for (const char character : zvUtf8::encode(text)) {
        if (const char* const entity = entityOf(character)) {
            result += entity;
        } else {
            result += character;
        }
    }
    return result;
}

std::string arrow(const zvString& local, const zvString& remote) {
    return "<b>" + escaped(local) + "</b> <span class=\"arrow\">&rarr;</span> <b>" + escaped(remote) + "</b>";
}

std::string badge(const char* word) { return std::string("<span class=\"badge\">") + word + "</span>"; }

std::string begin(const Frame& frame) {
    const std::string title = escaped(frame.title);
    return std::string("<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n") +
           "<meta http-equiv=\"Content-Security-Policy\" content=\"" + policy(frame) + "\">\n" +
           "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n" +
           "<meta name=\"color-scheme\" content=\"light dark\">\n<title>" + title + "</title>\n" +
           styleElement(zvPageCss) + styleElement(frame.style.text) +
           "</head>\n<body>\n<header class=\"page-title\"><h1>" + title +
           "</h1></header>\n<div class=\"bar\"><div>\n<div class=\"search\" role=\"search\">" +
           "<input id=\"search\" type=\"search\" aria-label=\"Search\" aria-keyshortcuts=\"/\" " +
           "autocomplete=\"off\" spellcheck=\"false\" placeholder=\"" + frame.searched +
           "\"><kbd aria-hidden=\"true\">/</kbd></div>\n" + links(frame.sections) +
           "<output id=\"found\" for=\"search\"></output>\n</div></div>\n<main>\n";
}

std::string end(const Frame& frame) {
    return std::string(
               "<p id=\"nothing\" class=\"nothing\" role=\"status\" hidden><strong>Nothing found</strong>") +
           "Nothing here has all words of &ldquo;<b></b>&rdquo;. <kbd>Esc</kbd> clears the search.</p>\n" +
           "</main>\n<script>\n" + frame.script.text + "</script>\n</body>\n</html>\n";
}

std::string openSection(const Section& section, int count) {
    const std::string id = section.id;
    return "<section id=\"" + id + "\" aria-labelledby=\"" + id + "-heading\">\n<h2 id=\"" + id +
           "-heading\">" + section.name + " <span class=\"count\">" + std::to_string(count) +
           "</span></h2>\n";
}

std::string closeSection() { return "</section>\n"; }

std::string openGroup(const std::string& id, const std::string& heading, const std::string& more, int rows) {
    return "<article id=\"" + id + "\" data-group style=\"--rows:" + std::to_string(rows) +
           "\">\n<h3 data-head><a href=\"#" + id + "\">" + heading + "</a>" + more + "</h3>\n";
}

std::string closeGroup() { return "</article>\n"; }

std::string openTable(const char* cssClass, const zvString& label, const std::vector<const char*>& columns) {
    std::string result =
        "<table class=\"" + std::string(cssClass) + "\" aria-label=\"" + escaped(label) + "\"><thead><tr>";
    for (const char* const column : columns) {
        result += "<th scope=\"col\">" + std::string(column) + "</th>";
    }
    return result + "</tr></thead><tbody>\n";
}

std::string row(std::initializer_list<std::string> cells) {
    std::string result = "<tr data-row>";
    std::string empty;
    for (const std::string& cell : cells) {
        if (cell.empty()) {
            empty += "<td></td>";
        } else {
            // The line end parts the cells for the search.
            const bool isName = &cell == cells.begin();
            result += empty;
            result += isName ? "<th scope=\"row\">" + cell + "\n</th>" : "<td>" + cell + "\n</td>";
            empty.clear();
        }
    }
    return result + "</tr>\n";  // empty cells at its end would only take time
}

std::string closeTable() { return "</tbody></table>\n"; }

}  // namespace zvPage

std::string zvPageAnchors::add(const char* kind, std::initializer_list<zvString> names) {
    std::string anchor = kind;
    for (const zvString& name : names) {
        anchor += ':' + anchorPart(name);
    }
    const int count = ++m_count[anchor];
    return count == 1 ? anchor : anchor + ':' + std::to_string(count);
}
