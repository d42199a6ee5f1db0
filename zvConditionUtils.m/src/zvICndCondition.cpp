#include "zvICndCondition.h"

zvICndCondition::~zvICndCondition() = default;
