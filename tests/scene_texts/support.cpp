#include "support.h"

#include <QGuiApplication>
#include <QLineF>

#include <ostream>

#include <kwdraw/texts/text_face.h>
#include <support/application.h>

void PrintTo(const QString& text, std::ostream* stream)
{
    *stream << '"' << text.toStdString() << '"';
}

namespace text_test {

namespace {

[[maybe_unused]] const auto* const kApplication =
    testing::AddGlobalTestEnvironment(new ApplicationAround<QGuiApplication>);

} // namespace

double Shown::height() const
{
    return QLineF(start, top).length();
}

Paper::Paper() : writer(scene)
{
    SceneLook look;
    look.color = 0x80112233;
    look.linetype = 3;
    writer.setLook(look, 5);
    writer.beginItem({}, 5);
}

std::vector<Shown> Paper::texts() const
{
    std::vector<Shown> all;
    for (const SceneShape& shape : scene.shapes) {
        if (shape.kind != SceneShape::Kind::Text)
            continue;
        const SceneText& text = scene.texts[shape.index];
        all.push_back({text.text, text.placement.map(QPointF(0.0, 0.0)),
                       text.placement.map(QPointF(text.advance, 0.0)),
                       text.placement.map(QPointF(0.0, 1.0)), scene.looks[shape.look],
                       scene.fonts[text.font]});
    }
    return all;
}

std::vector<Stroke> Paper::strokes(SceneShape::Kind kind) const
{
    std::vector<Stroke> all;
    for (const SceneShape& shape : scene.shapes) {
        if (shape.kind != kind)
            continue;
        const auto first = scene.points.begin() + shape.firstPoint;
        all.push_back({{first, first + shape.pointCount}, scene.looks[shape.look]});
    }
    return all;
}

QString Paper::letters() const
{
    QStringList all;
    for (const Shown& text : texts())
        all += text.letters;
    return all.join(QLatin1Char('|'));
}

double plainWidth(const QString& letters)
{
    const TextFace plain = faceOf(nullptr);
    return advanceOf(plain.font, letters) * plain.stretch;
}

} // namespace text_test
