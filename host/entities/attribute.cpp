#include <entities/attribute.h>

KD_RX_DEFINE(KdDbAttribute, KdDbText, L"AcDbAttribute", L"ATTRIB")
KD_RX_DEFINE(KdDbAttributeDefinition, KdDbText, L"AcDbAttributeDefinition", L"ATTDEF")
