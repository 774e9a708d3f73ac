#include <platform/resource_table.h>

extern "C" const ResourceTable kwResourceTable = {
    kResourceTableVersion + 1, 31, nullptr, nullptr, nullptr, 0};
