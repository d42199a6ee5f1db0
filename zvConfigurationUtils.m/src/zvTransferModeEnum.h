#ifndef ZV_TRANSFER_MODE_ENUM_H
#define ZV_TRANSFER_MODE_ENUM_H

/// The transfer mode of a file; "ASCII" and "BINARY" in the configuration file.
enum zvTransferModeEnum { zvTransferModeAscii = 0, zvTransferModeBinary = 1 };

#endif
