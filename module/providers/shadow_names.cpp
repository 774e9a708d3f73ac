#include <providers/shadow_names.h>

int shadowsOf(const KdDbEntity& entity)
{
    return (entity.castShadows() ? 0 : 2) + (entity.receiveShadows() ? 0 : 1);
}
