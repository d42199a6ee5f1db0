#ifndef ZV_XML_OPTIONS_H
#define ZV_XML_OPTIONS_H

/// What a parser accepts of the documents that it loads. A document beyond it is refused.
struct zvXMLOptions {
    /// Whether external entities and document type definitions are read, from files in or below the
    /// document's folder.
    bool readExternalEntities = true;
    /// Distinct names of elements and attributes, those that occur and those that are declared each by
    /// themselves.
    int mostNames = 20'000;
    /// Values of an attribute whose values are enumerated.
    int mostEnumeratedValues = 1'000;
    int mostNotations = 1'000;
    /// The one element whose text is kept, for large documents in which no other text is read, not even the
    /// white space between elements; null keeps all.
    const char16_t* onlyTextOf = nullptr;

    /// For documents that stand alone: nothing is read but the document.
    static zvXMLOptions withoutExternalEntities() {
        zvXMLOptions options;
        options.readExternalEntities = false;
        return options;
    }
};

#endif
