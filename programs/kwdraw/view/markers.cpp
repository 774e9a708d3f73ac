#include "markers.h"

#include <algorithm>
#include <array>

namespace {

struct Form
{
    std::vector<PathStep> steps;
    std::vector<QPointF> points;

    void line(QPointF from, QPointF to)
    {
        steps.insert(steps.end(), {PathStep::Move, PathStep::Line});
        points.insert(points.end(), {from, to});
    }
};

void addFigure(Form& form, int figure)
{
    if (figure == 2) {
        form.line({-1.0, 0.0}, {1.0, 0.0});
        form.line({0.0, -1.0}, {0.0, 1.0});
    } else if (figure == 3) {
        form.line({-1.0, -1.0}, {1.0, 1.0});
        form.line({-1.0, 1.0}, {1.0, -1.0});
    } else if (figure == 4) {
        form.line({0.0, 0.0}, {0.0, 0.5});
    }
}

void addCircle(Form& form)
{
    constexpr double r = 0.5;
    constexpr double k = r * 0.5522847498307936;
    form.steps.insert(form.steps.end(), {PathStep::Move, PathStep::Cubic, PathStep::Cubic,
                                         PathStep::Cubic, PathStep::Cubic});
    const QPointF circle[] = {{r, 0.0}, {r, k},   {k, r},    {0.0, r}, {-k, r}, {-r, k}, {-r, 0.0},
                              {-r, -k}, {-k, -r}, {0.0, -r}, {k, -r},  {r, -k}, {r, 0.0}};
    form.points.insert(form.points.end(), std::begin(circle), std::end(circle));
}

void addSquare(Form& form)
{
    constexpr double r = 0.5;
    form.steps.insert(form.steps.end(), {PathStep::Move, PathStep::Line, PathStep::Line,
                                         PathStep::Line, PathStep::Close});
    form.points.insert(form.points.end(), {{-r, -r}, {r, -r}, {r, r}, {-r, r}});
}

constexpr int kFigures = 7;
constexpr int kCircle = 32;
constexpr int kSquare = 64;
constexpr std::size_t kModes = 128;

std::array<Form, kModes> makeForms()
{
    std::array<Form, kModes> forms;
    for (std::size_t i = 0; i < kModes; ++i) {
        const int mode = static_cast<int>(i);
        addFigure(forms[i], mode & kFigures);
        if (mode & kCircle)
            addCircle(forms[i]);
        if (mode & kSquare)
            addSquare(forms[i]);
    }
    return forms;
}

} // namespace

double markerSize(const SceneMarker& marker, double scale, double viewHeight)
{
    if (marker.size > 0.0)
        return marker.size * scale;
    constexpr double kUsual = 5.0;
    const double percent = marker.size < 0.0 ? -marker.size : kUsual;
    return viewHeight * percent / 100.0;
}

double largestViewMarker(const Scene& scene)
{
    double largest = 0.0;
    for (const SceneMarker& marker : scene.markers)
        if (marker.size <= 0.0)
            largest = std::max(largest, markerSize(marker, 1.0, 1.0));
    return largest;
}

PathView markerPath(int mode)
{
    static const std::array<Form, kModes> kForms = makeForms();
    const Form& form = kForms[static_cast<std::size_t>(mode) % kModes];
    return {form.steps, form.points};
}

bool hasDot(int mode)
{
    return (mode & kFigures) == 0;
}
