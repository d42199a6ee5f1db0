#include <fstream>
#include <memory>
#include <xercesc/dom/DOM.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>
#include <xercesc/util/PlatformUtils.hpp>

#include "zvBenchmark.h"
#include "zvBenchmarkFiles.h"
#include "zvBenchmarkSubjects.h"
#include "zvXERCESDOMNODEList.h"
#include "zvXMLParser.h"

namespace {

// 1,000 groups of 33 elements with two children each.
constexpr int groups = 1000;
constexpr int itemsOfAGroup = 33;
constexpr int elements = 1 + groups + groups * itemsOfAGroup * 3;

void writeDocument(const std::string& path) {
    std::ofstream out(path);
    out << "<Catalogue>";
    for (int i = 0; i < groups; ++i) {
        out << "<Group Name=\"group " << i << "\">\n";
        for (int k = 0; k < itemsOfAGroup; ++k) {
            out << "<Item Number=\"" << i << '-' << k << "\"><Name>the name of item " << k
                << "</Name><Owner>somebody</Owner></Item>\n";
        }
        out << "</Group>\n";
    }
    out << "</Catalogue>\n";
}

// The counts of a walk, and a reused string that everything is read into.
template <class Text>
struct Walked {
    int elements = 0;
    std::size_t characters = 0;
    Text text;

    void count() { characters += static_cast<std::size_t>(text.size()); }
};

// Reads an element's name, its first attribute and its text.
void readOurs(zvXMLParser& parser, const zvString& attribute, Walked<zvString>& walked) {
    parser.getTag(walked.text);
    walked.count();
    parser.getAttribute(attribute, walked.text);
    walked.count();
    parser.getMemberValue(walked.text);
    walked.count();
    ++walked.elements;
}

void walkOurs(zvXMLParser& parser, Walked<zvString>& walked) {
    static const zvString number("Number");
    zvString tag;
    xercesc::DOMNode* const element = parser.getCurrentNode();
    readOurs(parser, number, walked);
    if (parser.getFirstChild(tag)) {
        do {
            walkOurs(parser, walked);
        } while (parser.getNextSibling(tag));
        parser.changeCurrentNode(element);
    }
}

void readXerces(const xercesc::DOMElement& element, const XMLCh* attribute, Walked<std::u16string>& walked) {
    walked.text = element.getTagName();
    walked.count();
    walked.text = element.getAttribute(attribute);
    walked.count();
    const xercesc::DOMNode* child = element.getFirstChild();
    while (child != nullptr && child->getNodeType() != xercesc::DOMNode::TEXT_NODE) {
        child = child->getNextSibling();
    }
    walked.text = child == nullptr ? u"" : child->getNodeValue();
    walked.count();
    ++walked.elements;
}

void walkXerces(const xercesc::DOMElement& element, Walked<std::u16string>& walked) {
    readXerces(element, u"Number", walked);
    for (const auto* child = element.getFirstElementChild(); child != nullptr;
         child = child->getNextElementSibling()) {
        walkXerces(*child, walked);
    }
}

std::size_t queryOurs(const zvXMLParser& parser) {
    std::size_t characters = 0;
    const std::unique_ptr<zvXERCESDOMNODEList> items(
        parser.getChildElementsByTagName(parser.getRootElement(), "Item"));
    for (int i = 0; i < items->numDOMNode(); ++i) {
        auto* const item = static_cast<xercesc::DOMElement*>(items->getDOMNode(i));
        characters += static_cast<std::size_t>(parser.getAttributeValue(item, "Number", true, true).size());
        characters += static_cast<std::size_t>(parser.getChildText(item, "Owner", true).size());
    }
    return characters;
}

std::size_t queryXerces(const xercesc::DOMElement& root) {
    std::size_t characters = 0;
    const xercesc::DOMNodeList* const items = root.getElementsByTagName(u"Item");
    const XMLSize_t count = items->getLength();
    for (XMLSize_t i = 0; i < count; ++i) {
        const auto* const item = static_cast<const xercesc::DOMElement*>(items->item(i));
        const std::u16string number = item->getAttribute(u"Number");
        const xercesc::DOMElement* owner = item->getFirstElementChild();
        while (!xercesc::XMLString::equals(owner->getTagName(), u"Owner")) {
            owner = owner->getNextElementSibling();
        }
        const std::u16string text = owner->getTextContent();
        characters += number.size() + text.size();
    }
    return characters;
}

}  // namespace

void zvXMLBenchmark() {
    xercesc::XMLPlatformUtils::Initialize();
    const std::string path = zvBenchmarkFiles::path("document.xml");
    writeDocument(path);
    const auto parser = std::make_shared<zvXMLParser>(path.c_str(), true);
    const auto raw = std::make_shared<xercesc::XercesDOMParser>();
    raw->parse(path.c_str());
    const auto walkBoth = [parser, raw] {
        Walked<zvString> ours;
        Walked<std::u16string> theirs;
        parser->changeCurrentNode(parser->getRootElement());
        walkOurs(*parser, ours);
        walkXerces(*raw->getDocument()->getDocumentElement(), theirs);
        return ours.elements == elements && theirs.elements == elements &&
               ours.characters == theirs.characters;
    };
    zvBenchmarkRequire(walkBoth(), "The two walks differ");
    zvBenchmarkRequire(queryOurs(*parser) == queryXerces(*raw->getDocument()->getDocumentElement()),
                       "The two queries differ");
    zvBenchmarkRow("walk over a document of 100,000 elements")
        .ours([parser] {
            Walked<zvString> walked;
            parser->changeCurrentNode(parser->getRootElement());
            walkOurs(*parser, walked);
            return walked.characters;
        })
        .peer("Xerces-C into std::u16string", "1.2", [raw] {
            Walked<std::u16string> walked;
            walkXerces(*raw->getDocument()->getDocumentElement(), walked);
            return walked.characters;
        });
    zvBenchmarkRow("query a document of 100,000 elements")
        .ours([parser] { return queryOurs(*parser); })
        .peer("Xerces-C into std::u16string", "1.2",
              [raw] { return queryXerces(*raw->getDocument()->getDocumentElement()); });
}
