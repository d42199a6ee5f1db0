#ifndef ZV_PAGE_H
#define ZV_PAGE_H

#include <initializer_list>
#include <map>
#include <string>
#include <vector>

#include "zvString.h"

/// What the program's HTML pages have in common. A page is one file in UTF-8 that asks the network for
/// nothing: a title, a bar with a search field and links to the sections, and sections with groups of rows.
///
///     begin  ( openSection  ( openGroup  openTable row... closeTable  closeGroup )...  closeSection )... end
///
/// Texts are given as zvString and escaped; a std::string is HTML already.
namespace zvPage {

struct Section {
    const char* id;
    const char* name;
};

/// A style or a script, and the hash by which the page's policy allows it: as zv_embed_text() gives them.
struct Part {
    const char* text = "";
    const char* hash = "";
};

/// The script of every page. A page's own is embedded after it.
extern const Part script;

struct Frame {
    zvString title;
    /// What the search field says that can be searched for.
    const char* searched = "";
    std::vector<Section> sections;
    /// The page's own style, after the common one. Tables are laid out by their class; a narrow window names
    /// cells by its "td:nth-child(N)::before".
    Part style;
    /// The common one, or with the page's own after it.
    Part script = zvPage::script;
};

/// The text as content of an element, and as a quoted attribute.
std::string escaped(const zvString& text);
/// "local -> remote" with an arrow.
std::string arrow(const zvString& local, const zvString& remote);
/// A word in a coloured pill.
std::string badge(const char* word);

std::string begin(const Frame& frame);
/// Of the same frame.
std::string end(const Frame& frame);

std::string openSection(const Section& section, int count);
std::string closeSection();

/// A group, which a search shows with its heading if one of its rows is found. `id` is from zvPageAnchors;
/// `more` stands in the heading after its text. The number of rows says how much room it will take.
std::string openGroup(const std::string& id, const std::string& heading, const std::string& more, int rows);
std::string closeGroup();

/// The label is for those who cannot see where the table stands.
std::string openTable(const char* cssClass, const zvString& label, const std::vector<const char*>& columns);
/// The first cell names the row.
std::string row(std::initializer_list<std::string> cells);
std::string closeTable();

}  // namespace zvPage

/// The anchors of a page: made of names, so that they stay what they are when something else changes.
class zvPageAnchors {
public:
    /// An id such as "object:Part:ReleasedPart", which needs no escaping. What has the same names as an
    /// earlier one has its number too.
    std::string add(const char* kind, std::initializer_list<zvString> names);

private:
    std::map<std::string, int> m_count;
};

#endif
