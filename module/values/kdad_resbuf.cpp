#include <values/kdad_resbuf.h>

resbuf* KdadNewResbuf(int restype)
{
    return kdutNewRb(static_cast<short>(restype));
}
