#include <providers/row_readers.h>

void chainTag(ResBuf& head, signed char number)
{
    ResBuf* record = ResBuf::newRb(ResBuf::kInt8);
    record->setInt8(number);
    head.setNext(record);
}
