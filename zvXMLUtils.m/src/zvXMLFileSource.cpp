#include "zvXMLFileSource.h"

#include <xercesc/util/BinFileInputStream.hpp>

#include "zvCharString.h"
#include "zvXMLText.h"

xercesc::BinInputStream* zvXMLFileSource::makeStream() const {
    const zvCharString name(zvXMLText::toString(getSystemId()));
    auto* const stream =
        new (getMemoryManager()) xercesc::BinFileInputStream(name.data(), getMemoryManager());
    if (!stream->getIsOpen()) {
        delete stream;
        return nullptr;
    }
    return stream;
}
