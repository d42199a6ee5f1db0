#include <Poco/AutoPtr.h>
#include <Poco/DOM/DOMParser.h>
#include <Poco/DOM/Document.h>
#include <Poco/DOM/Element.h>
#include <Poco/DOM/NamedNodeMap.h>
#include <Poco/UnicodeConverter.h>

#include <cstdlib>
#include <fstream>
#include <xercesc/dom/DOM.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>
#include <xercesc/util/PlatformUtils.hpp>

#include "zvBenchmark.h"
#include "zvBenchmarkFiles.h"
#include "zvBenchmarkSubjects.h"
#include "zvCfgConfigManager.h"
#include "zvCfgMgrXmlParser.h"
#include "zvConfigurationComparison.h"
#include "zvMappedTypes.h"

namespace {

constexpr int objectCount = 5000;
constexpr int attributesOfAnObject = 20;

// `other` makes one of a different rule and data type in every object.
void writeConfiguration(const std::string& path, bool other) {
    static constexpr const char* types[] = {"String", "Integer", "Float", "Boolean"};
    std::ofstream out(path);
    out << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<CustomizationConfig>\n  <ObjectConfig>\n";
    for (int i = 0; i < objectCount; ++i) {
        out << "    <Object OOTBType=\"Type" << i % 50 << "\" LocalCustType=\"LocalType" << i
            << "\" RemoteCustType=\"com.example.RemoteType" << i << "\">\n";
        for (int k = 0; k < attributesOfAnObject; ++k) {
            out << "      <Attribute LocalName=\"local_name_" << k << "\" RemoteName=\"remoteName" << k
                << "\"";
            if (k % 5 == 0) {
                out << " Key=\"key" << k << "\"";
            }
            if (k % 4 == 0) {
                out << " DefaultValue=\"" << k << "\"";
            }
            const int type = other && k == 7 ? k + 1 : k;
            out << " DataType=\"" << types[type % 4] << "\"/>\n";
        }
        out << "      <MappingRule>{state} = 'RELEASED' AND ({rev} &gt;" << (other ? "=" : "")
            << " '2' OR {number} = '" << i << "')</MappingRule>\n    </Object>\n";
    }
    out << "  </ObjectConfig>\n</CustomizationConfig>\n";
}

int loadOurs(const zvString& path) {
    zvBenchmarkRequire(zvCfgMgrXmlParser().parse(path, true).isOk(), "The configuration was not loaded");
    const int count = zvCfgConfigManager::getCfgConfigManager()->numObjects();
    zvCfgConfigManager::destroyCfgConfigManager();
    return count;
}

std::size_t compareOurs(const std::string& before, const std::string& after) {
    const zvComparedConfiguration old(before);
    const zvComparedConfiguration now(after);
    return zvConfigurationComparison(old, now).count();
}

xercesc::DOMDocument* parseXerces(xercesc::XercesDOMParser& parser, const std::string& path) {
    parser.parse(path.c_str());
    zvBenchmarkRequire(parser.getErrorCount() == 0, "Xerces-C did not parse the configuration");
    return parser.getDocument();
}

template <class Target>
void setFromXerces(const xercesc::DOMElement& element, Target& target) {
    const xercesc::DOMNamedNodeMap* const attributes = element.getAttributes();
    const XMLSize_t count = attributes->getLength();
    for (XMLSize_t i = 0; i < count; ++i) {
        target.set(attributes->item(i)->getNodeName(), attributes->item(i)->getNodeValue());
    }
}

std::unique_ptr<zvMappedObject> objectFromXerces(const xercesc::DOMElement& element) {
    auto object = std::make_unique<zvMappedObject>();
    setFromXerces(element, *object);
    for (const auto* child = element.getFirstElementChild(); child != nullptr;
         child = child->getNextElementSibling()) {
        if (xercesc::XMLString::equals(child->getTagName(), u"Attribute")) {
            auto attribute = std::make_unique<zvMappedAttribute>();
            setFromXerces(*child, *attribute);
            object->add(std::move(attribute));
        } else if (xercesc::XMLString::equals(child->getTagName(), u"MappingRule")) {
            object->rule = child->getTextContent();
        }
    }
    return object;
}

std::size_t loadXerces(const std::string& path) {
    xercesc::XercesDOMParser parser;
    const xercesc::DOMElement* const root = parseXerces(parser, path)->getDocumentElement();
    zvMappedTypes types;
    for (const auto* child = root->getFirstElementChild()->getFirstElementChild(); child != nullptr;
         child = child->getNextElementSibling()) {
        types.add(objectFromXerces(*child));
    }
    return types.objects.size();
}

std::u16string wide(const std::string& text) {
    Poco::UTF16String converted;
    Poco::UnicodeConverter::convert(text, converted);
    return {converted.begin(), converted.end()};
}

template <class Target>
void setFromPoco(const Poco::XML::Element& element, Target& target) {
    const Poco::AutoPtr<Poco::XML::NamedNodeMap> attributes(element.attributes());
    for (const Poco::XML::Node* node = attributes->item(0); node != nullptr; node = node->nextSibling()) {
        target.set(wide(node->nodeName()), wide(node->nodeValue()));
    }
}

std::unique_ptr<zvMappedObject> objectFromPoco(const Poco::XML::Element& element) {
    auto object = std::make_unique<zvMappedObject>();
    setFromPoco(element, *object);
    for (const auto* child = element.firstChild(); child != nullptr; child = child->nextSibling()) {
        if (child->nodeName() == "Attribute") {
            auto attribute = std::make_unique<zvMappedAttribute>();
            setFromPoco(static_cast<const Poco::XML::Element&>(*child), *attribute);
            object->add(std::move(attribute));
        } else if (child->nodeName() == "MappingRule") {
            object->rule = wide(child->innerText());
        }
    }
    return object;
}

std::size_t loadPoco(const std::string& path) {
    Poco::XML::DOMParser parser;
    const Poco::AutoPtr<Poco::XML::Document> document(parser.parse(path));
    const Poco::XML::Element* const section = document->documentElement()->getChildElement("ObjectConfig");
    zvMappedTypes types;
    for (const auto* child = section->firstChild(); child != nullptr; child = child->nextSibling()) {
        if (child->nodeType() == Poco::XML::Node::ELEMENT_NODE) {
            types.add(objectFromPoco(static_cast<const Poco::XML::Element&>(*child)));
        }
    }
    return types.objects.size();
}

// 10,000 cases, two for each object: all its attributes come and go.
void writeCases(const std::string& path) {
    std::ofstream out(path);
    out << "configuration: configuration.xml\ncases:\n";
    for (int i = 0; i < 2 * objectCount; ++i) {
        out << "  - name: case " << i << "\n    local: LocalType" << i / 2
            << "\n    attributes:\n      state: RELEASED\n      rev: 3\n";
        for (int k = 0; k < attributesOfAnObject; ++k) {
            out << "      local_name_" << k << ": " << (k % 4 == 3 ? 1 : k) << "\n";
        }
        out << "    gives: com.example.RemoteType" << i / 2 << "\n    with:\n";
        for (int k = 0; k < attributesOfAnObject; ++k) {
            out << "      remoteName" << k << ": " << (k % 4 == 3 ? 1 : k) << "\n";
        }
        out << "    left-out: [rev, state]\n";
    }
}

int runCases(const std::string& path) {
    const std::string command = ZV_GATEWAY " test " + path + " > " + path + ".out";
    const int status = std::system(command.c_str());
    zvBenchmarkRequire(status == 0, "The cases did not pass");
    return status;
}

void addComparison(const std::string& path, const std::string& changed) {
    zvBenchmarkRequire(compareOurs(path, changed) == 2 * objectCount, "Not every difference was found");
    zvBenchmarkRow("compare two configurations of 5,000 objects x 20 attributes, two changes in each object")
        .ours([path, changed] { return compareOurs(path, changed); })
        .peer("loading one of them", "3.0", [path = zvString(path.c_str())] { return loadOurs(path); });
}

}  // namespace

void zvConfigurationBenchmark() {
    xercesc::XMLPlatformUtils::Initialize();
    const std::string path = zvBenchmarkFiles::path("configuration.xml");
    writeConfiguration(path, false);
    const std::string changed = zvBenchmarkFiles::path("changed-configuration.xml");
    writeConfiguration(changed, true);
    for (const std::size_t count : {std::size_t(loadOurs(path.c_str())), loadXerces(path), loadPoco(path)}) {
        zvBenchmarkRequire(count == objectCount, "Somebody did not load every object");
    }
    zvBenchmarkRow("load a configuration of 5,000 objects x 20 attributes, rules included")
        .ours([path = zvString(path.c_str())] { return loadOurs(path); })
        .peer("Xerces-C DOM, bare parse", "1.4",
              [path] {
                  xercesc::XercesDOMParser parser;
                  return parseXerces(parser, path);
              })
        .peer("Xerces-C DOM into std::map", "1.0", [path] { return loadXerces(path); })
        .peer("POCO DOM into std::map", "0.8", [path] { return loadPoco(path); });
    addComparison(path, changed);
    const std::string cases = zvBenchmarkFiles::path("cases.yaml");
    writeCases(cases);
    zvBenchmarkRow("`zvgateway test` of 10,000 cases with that configuration", zvBenchmarkClock::wall)
        .ours([cases] { return runCases(cases); })
        .peer("loading it five times", "1.0", [path = zvString(path.c_str())] {
            int count = 0;
            for (int i = 0; i < 5; ++i) {
                count += loadOurs(path);
            }
            return count;
        });
}
