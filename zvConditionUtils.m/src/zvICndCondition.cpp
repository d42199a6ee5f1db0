#include "zvICndCondition.h"

zvICndCondition::zvICndCondition(const zvICndCondition& other) = default;

zvICndCondition::~zvICndCondition() = default;

zvICndCondition& zvICndCondition::operator=(const zvICndCondition&) { return *this; }
