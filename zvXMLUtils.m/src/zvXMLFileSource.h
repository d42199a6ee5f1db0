#ifndef ZV_XML_FILE_SOURCE_H
#define ZV_XML_FILE_SOURCE_H

#include <xercesc/framework/LocalFileInputSource.hpp>

/// A file that is opened by its name in this process's locale: the XML library's own conversion of names may
/// know another encoding.
class zvXMLFileSource : public xercesc::LocalFileInputSource {
public:
    using LocalFileInputSource::LocalFileInputSource;

    /// Null for a file that cannot be opened; owned by the caller.
    xercesc::BinInputStream* makeStream() const override;
};

#endif
