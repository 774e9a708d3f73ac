#include <values/type_factory.h>

#include <values/init_order.h>

[[gnu::init_priority(kInitValueFactories)]] constinit const ValueFactories kValueFactories{};

const type_factory& typeFactoryFor(int restype)
{
    switch (restype) {
    case ResBuf::kString:
    case ResBuf::kLinetypeName:
    case ResBuf::kLayerName:
    case ResBuf::kLineweightName:
    case ResBuf::kPlotStyleName:
    case ResBuf::kTransparencyText:
        return kValueFactories.text;
    case ResBuf::kPoint2d:
    case ResBuf::kPoint3d:
        return kValueFactories.point;
    default:
        return kValueFactories.plain;
    }
}
