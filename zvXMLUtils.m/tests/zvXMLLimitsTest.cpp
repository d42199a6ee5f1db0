#include <gtest/gtest.h>

#include <atomic>
#include <filesystem>
#include <thread>

#include "zvXMLHostileTest.h"

namespace fs = std::filesystem;

namespace {

constexpr int million = 1'000'000;
constexpr const char* tooManyNames =
    "XML document refused: more than 20000 different names of elements and attributes, the last one '";
constexpr const char* tooManyAtOnce =
    "XML document refused: too many names in one tag or declaration, in line 1";
constexpr const char* tooManyValues =
    "XML document refused: too many values, or too long ones, for attribute 'v' of element 'r'";
constexpr const char* tooManyChecks =
    "XML document refused: too many declared attributes or names to check element '";
constexpr const char* tooMuchMemory =
    "Unexpected exception during parsing: 'no memory left, or more of it taken than a document of its size "
    "may "
    "take";

std::string enumeration(int values, const std::string& before = "v") {
    return "<!ATTLIST r v (" + numbered(before, "|", values - 1) + "z) #IMPLIED>";
}

// Elements that are checked against what is declared for them.
std::string checked(const std::string& declarations, const std::string& element, int times) {
    return document(declarations, "<r>" + repeated(element, times) + "</r>");
}

using zvXMLLimitsTest = zvXMLHostileTest;

TEST_F(zvXMLLimitsTest, AMillionNamesEndSoon) {
    const struct {
        const char* what;
        std::string source;
        std::string expected;
    } cases[] = {
        {"elements", "<r>" + numbered("<a", "/>", million) + "</r>", tooManyNames},
        {"elements without an end", numbered("<a", ">", million), tooManyNames},
        {"attributes", "<r>" + numbered("<a b", "=''/>", million) + "</r>", tooManyNames},
        {"attributes of one element", "<r" + numbered(" a", "=''", million) + "/>", tooManyAtOnce},
        {"declared elements", document(numbered("<!ELEMENT e", " EMPTY>", million / 2), "<r/>"),
         tooManyNames},
        {"elements with declared attributes",
         document(numbered("<!ATTLIST e", " a CDATA ''>", million / 2), "<r/>"), tooManyNames},
        {"names in a content model", document("<!ELEMENT w (" + numbered("a", "|", million) + "z)>", "<r/>"),
         tooManyAtOnce},
        {"names in mixed content",
         document("<!ELEMENT w (#PCDATA|" + numbered("a", "|", million) + "z)*>", "<r/>"), tooManyAtOnce},
        {"values", document(enumeration(million), "<r/>"), tooManyValues},
        {"notations", document(numbered("<!NOTATION n", " SYSTEM 'x'>", million / 2), "<r/>"),
         "XML document refused: more than 1000 notations, the last one 'n1000'"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        EXPECT_EQ(c.expected, outcome(c.source).substr(0, c.expected.size()));
    }
}

// What is declared once is looked at for each element: neither may be too many together.
TEST_F(zvXMLLimitsTest, DeclarationsTimesElementsAreLimited) {
    const std::string attributes = "<!ATTLIST r" + numbered(" b", " CDATA #IMPLIED", 9'000) + ">";
    const std::string mixed = numbered("<!ELEMENT a", " EMPTY>", 1'000) + "<!ELEMENT w (#PCDATA|" +
                              numbered("a", "|", 1'000) + "r)*>";
    const std::string manyInMixed = document(mixed, "<r><w>" + repeated("<r/>", 100'000) + "</w></r>");
    EXPECT_EQ(0U, outcome(checked(attributes, "<r/>", 100'000)).find(tooManyChecks));
    EXPECT_EQ(0U, outcome(manyInMixed).find(tooManyChecks));
    EXPECT_EQ(tooManyValues, outcome(checked(enumeration(900, std::string(20, 'v')), "<r v='z'/>", 10)));
    EXPECT_EQ("loaded ", outcome(checked(attributes, "<r/>", 100)));
    EXPECT_EQ("loaded ", outcome(document(mixed, "<r><w>" + repeated("<r/>", 1'000) + "</w></r>")));
    EXPECT_EQ("loaded ", outcome(checked(enumeration(1'000), "<r v='z'/>", 10'000)));
    const std::string thousandModels = numbered("<!ELEMENT e", " (r?,r?,r?)>", 1'000);
    EXPECT_EQ("loaded ", outcome(checked(thousandModels, "<r a='1'>text</r>", 100'000)));
}

TEST_F(zvXMLLimitsTest, OptionsSayHowManyThereMayBe) {
    const std::string names = "<r>" + numbered("<a", "/>", 29'999) + "</r>";
    const std::string values = document(enumeration(1'500), "<r/>");
    const std::string notations = document(numbered("<!NOTATION n", " SYSTEM 'x'>", 1'500), "<r/>");
    zvXMLOptions more;
    more.mostNames = 30'000;
    more.mostEnumeratedValues = 1'500;
    more.mostNotations = 1'500;
    zvXMLOptions fewer;
    fewer.mostNames = 2;
    fewer.mostEnumeratedValues = 2;
    fewer.mostNotations = 2;
    for (const std::string& source : {names, values, notations}) {
        EXPECT_NE("loaded ", outcome(source));
        EXPECT_EQ("loaded ", outcome(source, false, more));
        EXPECT_NE("loaded ", outcome(source, false, fewer));
    }
    const std::string few =
        document(enumeration(2) + numbered("<!NOTATION n", " SYSTEM 'x'>", 2), "<r v='z'/>");
    EXPECT_EQ("loaded ", outcome(few, false, fewer));
}

// 140 elements take more than a file of this size may, and less than a file of twice the size.
TEST_F(zvXMLLimitsTest, AWideTextMayTakeNoMoreThanItsFile) {
    if (sizeof(void*) < sizeof(std::uint64_t)) {
        GTEST_SKIP() << "its numbers are those of 64 bits";
    }
    const std::string defaults = "<!ATTLIST r" + numbered(" b", " CDATA ''", 1'000) + ">";
    for (const int elements : {60, 140}) {
        const std::string source = document(
            defaults, "<r><!--" + std::string(300'000, '.') + "-->" + repeated("<r/>", elements) + "</r>");
        const std::string expected = elements == 60 ? "loaded " : tooMuchMemory;
        EXPECT_EQ(expected, outcome(source).substr(0, expected.size()));
        zvXMLParser wide;
        EXPECT_EQ(elements == 60, wide.loadXMLFromString(zvString(source.c_str()), false));
    }
}

TEST_F(zvXMLLimitsTest, WithoutExternalEntitiesNothingElseIsRead) {
    m_folder.write("part.txt", "part");
    m_folder.write("rules.dtd", "<!ELEMENT r ANY>");
    constexpr const char* useless = "XML document refused: it has the external entity \"";
    const zvXMLOptions alone = zvXMLOptions::withoutExternalEntities();
    const std::string entity = "<!ENTITY e SYSTEM 'part.txt'>";
    for (const std::string& source :
         {document(entity, "<r>&e;</r>"), document("<!ENTITY % p SYSTEM 'part.txt'>%p;", "<r/>"),
          document(entity + "<!ENTITY f '&e;'>", "<r>&f;</r>"),
          std::string("<!DOCTYPE r SYSTEM 'rules.dtd'><r/>")}) {
        SCOPED_TRACE(source);
        const std::string path = m_folder.write("doc.xml", source);
        EXPECT_EQ(0U, outcome(path, true, alone).find(useless));
        EXPECT_EQ(0U, outcome(source, false, alone).find(useless));
    }
    const std::string inner = m_folder.write("doc.xml", document(entity + "<!ENTITY i 'in'>", "<r>&i;</r>"));
    EXPECT_EQ("loaded in", outcome(inner, true, alone));
}

TEST_F(zvXMLLimitsTest, TheTextOfOneElementIsKept) {
    zvXMLOptions options;
    options.onlyTextOf = u"t";
    zvXMLParser parser(nullptr, options);
    ASSERT_TRUE(parser.loadXMLFromString(
        "<r a=' v '>\n <t> a<!-- c --> <![CDATA[<b>]]>&lt;<u>no</u> c</t> no <t>\n</t>\n</r>\n", false));
    zvString written;
    ASSERT_TRUE(parser.writeTreeToString(written, "UTF-8"));
    const std::string text = narrow(written);
    EXPECT_EQ(text.substr(text.find("<r")),
              "<r a=\" v \"><t> a<!-- c --> <![CDATA[<b>]]>&lt;<u/> c</t><t>\n</t></r>");
}

// Whoever may write to the folder puts a link in the place of the file, or of its folder, at the right
// moment.
TEST_F(zvXMLLimitsTest, LinksThatAreSwappedLeadNowhere) {
    if (onWindows) {
        GTEST_SKIP() << "symbolic links need rights there";
    }
    const std::string secret = m_folder.write("outside/part.txt", "secret");
    m_folder.write("docs/sub/part.txt", "part");
    const fs::path docs = m_folder.path() / "docs";
    fs::create_symlink(secret, docs / "link");
    fs::create_directory_symlink(m_folder.path() / "outside", docs / "linked");
    const std::string path =
        m_folder.write("docs/doc.xml", document("<!ENTITY e SYSTEM 'sub/part.txt'>", "<r>&e;</r>"));
    const zvXMLParser platform;  // keeps it initialised, which takes longer than a parse
    std::atomic<bool> isOver{false};
    std::thread neighbour([&] {
        while (!isOver) {
            std::error_code ignored;
            fs::rename(docs / "sub", docs / "kept", ignored);
            fs::rename(docs / "linked", docs / "sub", ignored);
            fs::rename(docs / "sub", docs / "linked", ignored);
            fs::rename(docs / "kept", docs / "sub", ignored);
        }
    });
    int read = 0;
    for (int i = 0; i < 1'000; ++i) {
        const std::string told = outcome(path, true);
        read += told == "loaded part" ? 1 : 0;
        EXPECT_NE("loaded secret", told);
    }
    isOver = true;
    neighbour.join();
    EXPECT_GT(read, 0);
}

}  // namespace
