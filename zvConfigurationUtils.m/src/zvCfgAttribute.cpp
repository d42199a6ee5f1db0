#include "zvCfgAttribute.h"

zvCfgAttribute::zvCfgAttribute() = default;

zvCfgAttribute::zvCfgAttribute(const zvCfgAttribute& other) = default;

zvCfgAttribute::~zvCfgAttribute() = default;

zvCfgAttribute& zvCfgAttribute::operator=(const zvCfgAttribute& other) = default;
