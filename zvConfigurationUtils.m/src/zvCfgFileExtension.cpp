#include "zvCfgFileExtension.h"

zvCfgFileExtension::zvCfgFileExtension() = default;

zvCfgFileExtension::~zvCfgFileExtension() = default;
