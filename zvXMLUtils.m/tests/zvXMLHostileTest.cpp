#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <xercesc/dom/DOM.hpp>

#include "zvXERCESDOMNODEList.h"
#include "zvXMLHostileTest.h"

namespace {

using List = std::unique_ptr<zvXERCESDOMNODEList>;

constexpr int many = 100'000;

// Nested entities, each of which contains the one before it `fold` times.
std::string nested(const std::string& head, const std::string& innermost, const std::string& reference,
                   int levels, int fold) {
    std::string all = "<!ENTITY " + head + "e0 '" + innermost + "'>";
    for (int i = 1; i <= levels; ++i) {
        all += "<!ENTITY " + head + "e" + std::to_string(i) + " '" +
               repeated(reference + "e" + std::to_string(i - 1) + ";", fold) + "'>";
    }
    return all;
}

// Declares elements w0, w1 and so on, each with a thousand child elements: a million transitions.
std::string largeModels(int count) {
    const std::string model = numbered("n", ",", 999) + "n";
    return numbered("<!ELEMENT w", " (" + model + ")>", count);
}

TEST_F(zvXMLHostileTest, RefusesWhatExplodes) {
    constexpr const char* tooMuch =
        "Unexpected exception during parsing: 'no memory left, or more of it taken than a document of its "
        "size may "
        "take";
    constexpr const char* tooMany = "XML document refused: parser has encountered more than '10000' entity ";
    constexpr const char* tooComplex =
        "XML document refused: too large or too ambiguous a content model for element 'w'";
    const std::string longText(16'000, 'x');
    const struct {
        const char* what;
        std::string source;
        std::string expected;
    } cases[] = {
        {"entities in entities", document(nested("", "lol", "&", 12, 10), "<r>&e12;</r>"), tooMany},
        {"the same in an attribute", document(nested("", "lol", "&", 12, 10), "<r a='&e12;'/>"), tooMany},
        {"empty entities", document("<!ENTITY e ''>", "<r>" + repeated("&e;", 11'000) + "</r>"), tooMany},
        {"entities in a default",
         document(nested("", "lol", "&", 12, 10) + "<!ATTLIST r b CDATA '&e12;'>", "<r/>"), tooMuch},
        {"one long entity",
         document("<!ENTITY e '" + longText + "'>", "<r>" + repeated("&e;", 9'000) + "</r>"), tooMuch},
        {"the same in an attribute",
         document("<!ENTITY e '" + longText + "'>", "<r a='" + repeated("&e;", 9'000) + "'/>"), tooMuch},
        {"parameter entities", document(nested("% ", " ", "&#37;", 40, 2) + "%e40;", "<r/>"), tooMuch},
        {"a very long entity", document("<!ENTITY e '" + repeated(longText, 2) + "'>", "<r/>"),
         "XML document refused: too many entities, or too long a one: 'e'"},
        {"very many entities", document(numbered("<!ENTITY e", " ''>", 10'001), "<r/>"),
         "XML document refused: too many entities, or too long a one: 'e10000'"},
        {"many large content models", document(largeModels(11), "<r/>"),
         "XML document refused: too large or too ambiguous a content model for element 'w10'"},
        {"an endless entity", document("<!ENTITY e '&e;'>", "<r>&e;</r>"),
         "XML document refused: recursive entity expansion"},
        {"a wide content model", document("<!ELEMENT w (" + repeated("a,", 5'000) + "a)>", "<r><w/></r>"),
         tooComplex},
        {"an ambiguous content model",
         document("<!ELEMENT a EMPTY><!ELEMENT w ((a|r)*,a" + repeated(",(a|r)", 24) + ")>",
                  "<r><w><a/></w></r>"),
         tooComplex},
        {"attributes", "<r" + numbered(" a", "=''", 11'000) + "/>",
         "XML document refused: too many attributes for element 'r'"},
        {"declared attributes", document("<!ATTLIST r" + numbered(" b", " CDATA ''", many) + ">", "<r/>"),
         "XML document refused: too many attributes declared for element 'r'"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        EXPECT_EQ(c.expected, outcome(c.source).substr(0, c.expected.size()));
    }
}

// A large document may take the memory for it.
TEST_F(zvXMLHostileTest, LimitsTheTextOfEntities) {
    const std::string entity = "<!ENTITY e '" + std::string(16'000, 'x') + "'>";
    const std::string comment = "<r><!--" + std::string(1'000'000, '.') + "-->";
    const std::string expected = "XML document refused: parser has encountered more than '2000' entity ";
    EXPECT_EQ(32'000'007U, outcome(document(entity, comment + repeated("&e;", 2'000) + "</r>")).size());
    EXPECT_EQ(0U, outcome(document(entity, comment + repeated("&e;", 2'001) + "</r>")).find(expected));
}

TEST_F(zvXMLHostileTest, EndlessErrorsAreCutOff) {
    const std::string huge(200'000, 't');
    EXPECT_NE("loaded ",
              outcome(document("", "<r>" + huge + "<x" + numbered(" a", "=''", 5'000) + "/></r>")));
    EXPECT_LT(zvRecordingLogger::lines("error").size(), 20U);
}

TEST_F(zvXMLHostileTest, ReadsEntitiesFromItsFolderOnly) {
    m_folder.write("outside.txt", "secret");
    m_folder.write("docs/part.txt", "part");
    m_folder.write("docs/sub/more parts.ent", "<?xml encoding='ISO-8859-1'?>\xE4&up;");
    m_folder.write("docs/sub/rules.dtd", "<!ELEMENT r ANY><!ENTITY up SYSTEM '../part.txt'>");
    if (!onWindows) {
        std::filesystem::create_symlink(m_folder.path() / "outside.txt", m_folder.path() / "docs/link.txt");
        std::filesystem::create_symlink("part.txt", m_folder.path() / "docs/inside.txt");
        std::filesystem::create_directory_symlink(m_folder.path(), m_folder.path() / "docs/folder");
    }
    const std::string folder = m_folder.path().string();
    constexpr const char* outside = "outside the document's folder";
    constexpr const char* noFile = "not a file on this machine";
    constexpr const char* unreadable = "not a file that can be read";
    const std::string root = onWindows ? "/" + m_folder.path().generic_string() : folder;
    const struct {
        std::string systemId;
        const char* refusal;  // null: it is loaded
        bool isOfPosix = false;
    } cases[] = {
        {"part.txt", nullptr},
        {"./sub/../part.txt", nullptr},
        {"inside.txt", nullptr, true},
        {"file:" + root + "/docs/part.txt", nullptr},
        {"../outside.txt", outside},
        {"sub/../../outside.txt", outside},
        {"link.txt", outside, true},
        {"folder/outside.txt", outside, true},
        {folder + "/outside.txt", outside},
        {"file://" + root + "/docs/%2e%2e/outside.txt", outside},
        {"..%2Foutside.txt", outside},
        {"/etc/passwd", outside, true},
        {"http://127.0.0.1:9/part.txt", noFile},
        {"HTTPS://127.0.0.1:9/part.txt", noFile},
        {"ftp://127.0.0.1:9/part.txt", noFile},
        {"file://127.0.0.1" + root + "/docs/part.txt", noFile},
        {"missing.txt", unreadable},
        {"sub", unreadable},
        {"/dev/zero", unreadable, true},
    };
    for (const auto& c : cases) {
        if (onWindows && c.isOfPosix) {
            continue;
        }
        SCOPED_TRACE(c.systemId);
        const std::string entity = "<!ENTITY e SYSTEM \"" + c.systemId + "\">";
        const std::string inFile = m_folder.write("docs/doc.xml", document(entity, "<r>a &e; z</r>"));
        EXPECT_EQ(c.refusal == nullptr
                      ? "loaded a part z"
                      : "XML document refused: its external entity \"" + c.systemId + "\" is " + c.refusal,
                  outcome(inFile, true));
        EXPECT_EQ("XML document refused: it is not in a file and yet has the external entity \"" +
                      c.systemId + "\"",
                  outcome(document(entity, "<r>&e;</r>")));
        // An entity without a reference is not loaded.
        EXPECT_EQ("loaded ", outcome(document(entity, "<r/>")));
    }
}

TEST_F(zvXMLHostileTest, ReadsTypeDefinitionsFromItsFolderOnly) {
    m_folder.write("outside.dtd", "<!ELEMENT r ANY>");
    m_folder.write("docs/part.txt", "part");
    m_folder.write("docs/sub/latin 1.ent", "<?xml encoding='ISO-8859-1'?>\xE4 &up;");
    m_folder.write("docs/sub/rules.dtd",
                   "<!ELEMENT r ANY><!ENTITY up SYSTEM '../part.txt'><!ENTITY e SYSTEM 'latin%201.ent'>");
    const std::string good = m_folder.write("docs/good.xml", "<!DOCTYPE r SYSTEM 'sub/rules.dtd'><r>&e;</r>");
    EXPECT_EQ("loaded " + narrow(u"\u00E4 part"), outcome(good, true));
    const std::string bad = m_folder.write("docs/bad.xml", "<!DOCTYPE r SYSTEM '../outside.dtd'><r/>");
    EXPECT_EQ("XML document refused: its external entity \"../outside.dtd\" is outside the document's folder",
              outcome(bad, true));
    const std::string parameter =
        m_folder.write("docs/pe.xml", document("<!ENTITY % p SYSTEM '../outside.dtd'> %p;", "<r/>"));
    EXPECT_EQ("XML document refused: its external entity \"../outside.dtd\" is outside the document's folder",
              outcome(parameter, true));
    EXPECT_EQ("XML document refused: it is not in a file and yet has the external entity \"sub/rules.dtd\"",
              outcome("<!DOCTYPE r SYSTEM 'sub/rules.dtd'><r/>"));
}

TEST_F(zvXMLHostileTest, LimitsRepeatedReadsOfAnEntity) {
    m_folder.write("big.txt", std::string(1'000'000, ' '));
    m_folder.write("doc.dtd", "<!ELEMENT r ANY><!ENTITY % p SYSTEM 'big.txt'>" + repeated("%p;", 1'000));
    const std::string path = m_folder.write("doc.xml", "<!DOCTYPE r SYSTEM 'doc.dtd'><r/>");
    EXPECT_EQ("XML document refused: it reads its external entity \"big.txt\" too often",
              outcome(path, true));
}

TEST_F(zvXMLHostileTest, HundredThousandSiblingsTakeLinearTime) {
    zvXMLParser parser(("<r>" + repeated("<a x='1'>t</a>", many) + "<z/></r>").c_str(), false);
    const auto start = std::chrono::steady_clock::now();
    zvString tag;
    ASSERT_TRUE(parser.getFirstChild(tag));
    int siblings = 1;
    while (parser.getNextSibling(tag)) {
        ++siblings;
    }
    EXPECT_EQ(many + 1, siblings);
    EXPECT_EQ(many, List(parser.getChildNodes(parser.getRootElement(), "a"))->numDOMNode());
    EXPECT_EQ(many, List(parser.getChildElementsByTagName(parser.getRootElement(), "a"))->numDOMNode());
    EXPECT_NE(nullptr, parser.getChildElement(parser.getRootElement(), "z"));
    zvString out;
    EXPECT_TRUE(parser.writeTreeToString(out, "UTF-8"));
    EXPECT_GT(out.size(), many * 10);
    EXPECT_LT(std::chrono::steady_clock::now() - start, bearable);
}

TEST_F(zvXMLHostileTest, HundredThousandLevelsNeedNoStack) {
    zvXMLParser parser((repeated("<a>", many) + "<z/>" + repeated("</a>", many)).c_str(), false);
    const auto start = std::chrono::steady_clock::now();
    ASSERT_NE(nullptr, parser.getRootElement());
    EXPECT_EQ(many - 1, List(parser.getChildElementsByTagName(parser.getRootElement(), "a"))->numDOMNode());
    EXPECT_NE(nullptr, parser.getChildElement(parser.getRootElement(), "z"));
    zvString tag;
    int depth = 0;
    while (parser.getFirstChild(tag)) {
        ++depth;
    }
    EXPECT_EQ(many, depth);
    EXPECT_TRUE(parser.getRoot(tag));
    zvString out;
    EXPECT_FALSE(parser.writeTreeToString(out, "UTF-8"));
    EXPECT_EQ(Lines{"The document cannot be written: its elements are nested in more than 2000 levels"},
              zvRecordingLogger::lines("error"));
    EXPECT_LT(std::chrono::steady_clock::now() - start, bearable);
}

TEST_F(zvXMLHostileTest, BuildsAndWritesDeepDocuments) {
    for (const int levels : {1'999, 2'000, many}) {
        zvXMLParser parser;
        ASSERT_TRUE(parser.createXMLTree("a"));
        for (int i = 1; i < levels; ++i) {
            ASSERT_TRUE(parser.addStartTag("a"));
        }
        zvString out;
        EXPECT_EQ(levels <= 2'000, parser.writeTreeToString(out, "UTF-8")) << levels;
    }
}

}  // namespace
