#ifndef ZV_XML_TEST_SUPPORT_H
#define ZV_XML_TEST_SUPPORT_H

#include <gtest/gtest.h>

#include <string>
#include <vector>
#include <xercesc/dom/DOM.hpp>

#include "zvRecordingLogger.h"
#include "zvTestSupport.h"
#include "zvXMLParser.h"

using Lines = std::vector<std::string>;

/// An attribute of `node`; "-" when it has none of that name.
inline zvString nameOf(xercesc::DOMNode* node, const char* attribute = "Name") {
    zvString value;
    return zvXMLParser().getAttribute(node, attribute, value) ? value : "-";
}

/// The parser's document; "failed" when it cannot be written.
inline zvString writtenText(zvXMLParser& parser, const char* encoding) {
    zvString out;
    return parser.writeTreeToString(out, encoding) ? out : "failed";
}

inline std::string written(zvXMLParser& parser, const char* encoding = "UTF-8") {
    return narrow(writtenText(parser, encoding));
}

/// Has a parser with a document.
class zvXMLSampleTest : public zvLoggedTest {
protected:
    zvXMLSampleTest() : m_parser(sample, false) {}

    xercesc::DOMElement* root() { return m_parser.getRootElement(); }

    static constexpr const char* sample =
        "<?xml version=\"1.0\"?>\n<!-- c --><Config Version='2' Empty='' B=\"&lt;&#228;\">\n"
        "  text <Section><Object Name='deep'> a </Object><Text> \n x y\t</Text><Blank>  </Blank></Section>\n"
        "  <Object Name='one'/><!-- c --><object/><Object Name='two'><Object Name='three'/></Object>"
        "<Cdata><!-- c --><![CDATA[<x>]]>tail</Cdata></Config>";

    zvXMLParser m_parser;
};

#endif
