// ABI check: the sizes of the value classes and the offsets of their members on 32-bit Windows, on which
// existing programs rely. Compiled without access control, since members are private, and never run.
#include <cstddef>

#include "zvAttachment.h"
#include "zvAttribute.h"
#include "zvCharString.h"
#include "zvCndCondition.h"
#include "zvCndContext.h"
#include "zvCndOperand.h"
#include "zvDateTime.h"
#include "zvEventArguments.h"
#include "zvException.h"
#include "zvICndComparisonCondition.h"
#include "zvICndNotCondition.h"
#include "zvReferenceCtr.h"
#include "zvResult.h"
#include "zvString.h"
#include "zvStringList.h"
#include "zvStringToAttrMap.h"
#include "zvStringTokeniser.h"
#include "zvValue.h"

#define ZV_SIZE(type, size) static_assert(sizeof(type) == (size), "the size of " #type)
#define ZV_PLACE(type, member, offset) \
    static_assert(offsetof(type, member) == (offset), "the place of " #type "::" #member)

ZV_SIZE(void*, 4);
ZV_SIZE(zvCoreObject, 4);

ZV_SIZE(zvString, 24);
ZV_PLACE(zvString, m_pBuffer, 4);
ZV_PLACE(zvString, m_length, 8);
ZV_PLACE(zvString, m_capacity, 12);
ZV_PLACE(zvString, m_bCacheUnchanged, 16);
ZV_PLACE(zvString, m_pNarrowCache, 20);

ZV_SIZE(zvCharString, 4);

ZV_SIZE(zvResult, 60);
ZV_PLACE(zvResult, m_result, 4);
ZV_PLACE(zvResult, m_strMessage, 8);
ZV_PLACE(zvResult, m_failureType, 32);
ZV_PLACE(zvResult, m_strAdditionalInformation, 36);

ZV_SIZE(zvException, 88);
ZV_PLACE(zvException, m_result, 4);
ZV_PLACE(zvException, m_strMessage, 64);

ZV_SIZE(zvReferenceCtr, 8);
ZV_PLACE(zvReferenceCtr, m_count, 4);

ZV_SIZE(zvStringList, 8);
ZV_PLACE(zvStringList, m_pImpl, 4);

ZV_SIZE(zvStringTokeniser, 68);
ZV_PLACE(zvStringTokeniser, m_delimiter, 4);
ZV_PLACE(zvStringTokeniser, m_strDelimiters, 8);
ZV_PLACE(zvStringTokeniser, m_strSource, 32);
ZV_PLACE(zvStringTokeniser, m_tokens, 56);
ZV_PLACE(zvStringTokeniser, m_bCharDelimiter, 64);
ZV_PLACE(zvStringTokeniser, m_bWholeString, 65);

ZV_SIZE(zvDateTime, 40);
ZV_PLACE(zvDateTime, m_year, 4);
ZV_PLACE(zvDateTime, m_month, 6);
ZV_PLACE(zvDateTime, m_day, 8);
ZV_PLACE(zvDateTime, m_hour, 10);
ZV_PLACE(zvDateTime, m_minute, 12);
ZV_PLACE(zvDateTime, m_second, 14);
ZV_PLACE(zvDateTime, m_strFormat, 16);

ZV_SIZE(zvDataTypeEnum, 4);
ZV_SIZE(zvValue, 88);
ZV_PLACE(zvValue, m_bValue, 4);
ZV_PLACE(zvValue, m_integer, 8);
ZV_PLACE(zvValue, m_float, 12);
ZV_PLACE(zvValue, m_precision, 16);
ZV_PLACE(zvValue, m_strValue, 20);
ZV_PLACE(zvValue, m_dateValue, 44);
ZV_PLACE(zvValue, m_dataType, 84);

ZV_SIZE(zvAttribute, 116);
ZV_PLACE(zvAttribute, m_strName, 4);
ZV_PLACE(zvAttribute, m_value, 28);

ZV_SIZE(zvEventNameEnum, 4);
ZV_SIZE(zvEventArguments, 8);
ZV_PLACE(zvEventArguments, m_pArguments, 4);

ZV_SIZE(zvAttachment, 36);
ZV_PLACE(zvAttachment, m_strFilePath, 4);
ZV_PLACE(zvAttachment, m_fileTransferMode, 28);
ZV_PLACE(zvAttachment, m_bToBeDeleted, 32);

ZV_SIZE(zvCndOperand, 96);
ZV_PLACE(zvCndOperand, m_value, 4);
ZV_PLACE(zvCndOperand, m_valueType, 92);

ZV_SIZE(zvStringToAttrMap, 8);
ZV_SIZE(zvCndContext, 12);
ZV_SIZE(zvCndCondition, 4);
ZV_SIZE(zvICndCondition, 12);
ZV_PLACE(zvICndCondition, m_conditionType, 8);
ZV_SIZE(zvICndComparisonCondition, 204);
ZV_PLACE(zvICndComparisonCondition, m_lhsOperand, 12);
ZV_PLACE(zvICndComparisonCondition, m_rhsOperand, 108);
ZV_SIZE(zvICndNotCondition, 16);
ZV_PLACE(zvICndNotCondition, m_condition, 12);
