// Counts circles above a radius, or entities on a layer, with libdime: the same questions as
// compare_tools.py puts to the other programs.
#include <cstdlib>
#include <cstring>
#include <iostream>

#include <dime/Input.h>
#include <dime/Model.h>
#include <dime/entities/Circle.h>
#include <dime/sections/EntitiesSection.h>

int main(int argc, char** argv)
{
    if (argc != 4)
        return 2;
    dimeInput input;
    dimeModel model;
    if (!input.setFile(argv[1]) || !model.read(&input))
        return 1;
    auto* const section = static_cast<dimeEntitiesSection*>(model.findSection("ENTITIES"));
    if (!section)
        return 1;
    const bool byRadius = std::strcmp(argv[2], "radius") == 0;
    const double least = std::atof(argv[3]);
    int count = 0;
    for (int i = 0; i < section->getNumEntities(); ++i) {
        dimeEntity* const entity = section->getEntity(i);
        if (!byRadius)
            count += std::strcmp(entity->getLayerName(), argv[3]) == 0 ? 1 : 0;
        else if (entity->typeId() == dimeBase::dimeCircleType)
            count += static_cast<dimeCircle*>(entity)->getRadius() > least ? 1 : 0;
    }
    std::cout << count << '\n';
}
