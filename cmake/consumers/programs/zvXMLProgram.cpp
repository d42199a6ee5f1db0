// Only the parser's own header: it brings what a caller needs to use what it returns.
#include "zvXMLParser.h"

#include "zvCheck.h"

namespace {

const char document[] = "<r a='1' b=''><c n='x'>t</c><d><c n='y'/></d><c/></r>";

void cursor() {
    zvXMLParser parser;
    zvString tag, value;
    zvStringList names, values;
    ZV_CHECK(!parser.loadXMLFromString("nowhere.xml", true) &&
             parser.loadXMLFromString(zvString(document), false));
    ZV_CHECK(parser.loadXMLFromString(document, false) && parser.getRoot(tag) && tag == 'r');
    ZV_CHECK(parser.getRootNode() == parser.getRootElement() &&
             parser.getCurrentNode() == parser.getRootNode());
    ZV_CHECK(parser.getAttribute("a", value) && value == 1 && parser.getAttribute('b', value) &&
             value.empty());
    ZV_CHECK(parser.getAttributes(names, values) && names.numStrings() == 2);
    ZV_CHECK(parser.getFirstChild(tag) && parser.getTag(tag) && tag == 'c' && parser.getMemberValue(value));
    ZV_CHECK(value == 't' && parser.getNextSibling(tag) && tag == 'd' && parser.getParent(tag) && tag == 'r');
    ZV_CHECK(parser.getAttribute(parser.getCurrentNode(), "a", value) && !parser.changeCurrentNode(nullptr));
    ZV_CHECK(parser.getAttributes(parser.getCurrentNode(), names, values));
    ZV_CHECK(parser.changeCurrentNode(parser.getRootElement()));
}

void queries() {
    zvXMLParser parser(document, false);
    xercesc::DOMElement* const root = parser.getRootElement();
    xercesc::DOMElement* const first = parser.getChildElement(root, "c");
    ZV_CHECK(first == parser.getChildElement(root, 'c', true) && first != root);
    ZV_CHECK(parser.getCurrentNode() == root && parser.changeCurrentNode(first) &&
             first->getParentNode() == root);
    ZV_CHECK(parser.getChildTextNode(first) != nullptr && parser.getChildTextTrim(root, "c") == 't');
    ZV_CHECK(parser.getChildText(root, "c", true) == 't' && parser.getChildText(nullptr, "c", true).empty());
    ZV_CHECK(parser.getAttributeValue(first, 'n', true, true) == 'x');
    zvXERCESDOMNODEList* const all = parser.getChildElementsByTagName(root, "c");
    zvXERCESDOMNODEList* const direct = parser.getChildNodes(root, "c");
    ZV_CHECK(all->numDOMNode() == 3 && direct->numDOMNode() == 2 && direct->getDOMNode(0) == first);
    auto* const inner = static_cast<xercesc::DOMElement*>(all->getDOMNode(1));
    ZV_CHECK(parser.getAttributeValue(inner, "n", true, true) == 'y' && all->getDOMNode(-1) == nullptr);
    delete all;
    direct->addDOMNode(inner);
    ZV_CHECK(direct->back() == inner && !direct->empty());
    direct->pop();
    direct->clear();
    delete direct;
}

// NULL is 0 or of a type of its own.
void characters() {
    const wchar16 units[] = {'a', 0};
    ZV_CHECK(zvXMLParser::getStringFromXMLCh(units) == 'a' && zvXMLParser::getStringFromXMLCh(u"a") == 'a');
    ZV_CHECK(zvXMLParser::getStringFromXMLCh(NULL).empty() && zvXMLParser::getStringFromXMLCh(0).empty());
    ZV_CHECK(zvXMLParser::getStringFromXMLCh(nullptr).empty());
    zvXMLParser parser(document, false);
    ZV_CHECK(zvXMLParser::getStringFromXMLCh(parser.getRootElement()->getTagName()) == 'r');
}

void building() {
    zvXMLParser parser;
    zvString written;
    ZV_CHECK(parser.createXMLTree("other", "urn:x") && parser.createXMLTree('r') && parser.addStartTag("c"));
    ZV_CHECK(parser.addAttribute("n", 5) && parser.addMemberValue(2.5) && parser.addEndTag());
    ZV_CHECK(parser.writeTreeToString(written, "UTF-8") &&
             written.find("<r><c n=\"5\">2.500000</c></r>") > 0);
    ZV_CHECK(!parser.writeTreeToFile("nowhere\\at all\\a.xml", "UTF-8"));
}

}  // namespace

int main() {
    cursor();
    queries();
    characters();
    building();
    return failures;
}
