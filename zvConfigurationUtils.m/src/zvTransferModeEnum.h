#ifndef ZV_TRANSFER_MODE_ENUM_H
#define ZV_TRANSFER_MODE_ENUM_H

/// How a file travels. The configuration file names these "ASCII" and "BINARY".
enum zvTransferModeEnum { zvTransferModeAscii = 0, zvTransferModeBinary = 1 };

#endif
