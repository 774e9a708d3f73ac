#include "selection.h"

#include <fstream>
#include <iterator>

#include <gtest/gtest.h>

std::string contentOf(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

Written writeOf(const std::string& content, const std::vector<KdDbHandle>& handles)
{
    const TemporaryFolder folder;
    const ReadDrawing source = readBytes(content);
    std::vector<KdDbObjectId> ids;
    for (const KdDbHandle handle : handles) {
        const KdDbObject* object = source.object(handle);
        EXPECT_TRUE(object) << handle;
        if (object)
            ids.push_back(object->objectId());
    }
    KdString error;
    EXPECT_EQ(writeSelection(*source.database, ids, folder / "part.dxf", error), eOk);
    EXPECT_TRUE(error.isEmpty());
    Written written;
    written.bytes = contentOf(folder / "part.dxf");
    ReadOptions options;
    options.readAllMembers = true;
    written.drawing = readBytes(written.bytes, options);
    EXPECT_EQ(written.drawing.status, eOk);
    return written;
}
