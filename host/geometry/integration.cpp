#include "integration.h"

#include <math_Function.hxx>
#include <math_KronrodSingleIntegration.hxx>

namespace geometry {
namespace {

class Integrand : public math_Function
{
  public:
    explicit Integrand(const std::function<double(double)>& function) : m_function(function) {}

    Standard_Boolean Value(double x, double& value) override
    {
        value = m_function(x);
        return true;
    }

  private:
    const std::function<double(double)>& m_function;
};

} // namespace

double integral(const std::function<double(double)>& function, double from, double to)
{
    constexpr int kPoints = 31;
    constexpr double kRelativeError = 1e-13;
    constexpr int kMostBisections = 100;
    Integrand integrand(function);
    const math_KronrodSingleIntegration result(integrand, from, to, kPoints, kRelativeError,
                                               kMostBisections);
    return result.IsDone() ? result.Value() : 0.0;
}

} // namespace geometry
