#include "conductivity.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numeric>

namespace quendal::curves {

namespace {

constexpr int kMostTerms = 1000;
constexpr double kTermTolerance = 1e-13;

double ionSum(const std::vector<DissolvedConductor>& solution) {
    return std::accumulate(
        solution.begin(), solution.end(), 0.0,
        [](double sum, const DissolvedConductor& one) { return sum + one.concentration; });
}

// The mutual relaxation of all pairs of ions. With the fraction m of an ion in all ions, its
// mobility u and its charge z, the relaxation factors are z times
//   (1 + √H)^-1 a,   a_i = Σ_j m_j (u_i z_i - u_j z_j) / (u_i + u_j),
//   H_ij = m_j u_j / (u_i + u_j) for i ≠ j, H_ii = m_i / 2 + Σ_k m_k u_k / (u_i + u_k).
class Relaxation {
  public:
    explicit Relaxation(const std::vector<DissolvedConductor>& solution)
        : solution_(solution), total_(ionSum(solution)) {}

    // All eigenvalues of H lie between 0 and 1, so the power series of (1 + √H)^-1 in 1 - H
    // converges: 1/2 + x/8 + x²/16 + 5 x³/128 + ..., with all of its terms positive.
    std::vector<double> factors() const {
        std::vector<double> power = firstForces();
        std::vector<double> sum(power.size(), 0.0);
        double coefficient = 0.5;
        for (int n = 0; n < kMostTerms && coefficient * largest(power) > kTermTolerance; ++n) {
            for (std::size_t i = 0; i < sum.size(); ++i) {
                sum[i] += coefficient * power[i];
            }
            power = withoutCoupling(power);
            coefficient *= (2.0 * n + 1.0) / (2.0 * n + 4.0);
        }
        for (std::size_t i = 0; i < sum.size(); ++i) {
            sum[i] *= solution_[i].ion.charge;
        }
        return sum;
    }

  private:
    double fraction(std::size_t i) const { return solution_[i].concentration / total_; }
    double mobility(std::size_t i) const { return solution_[i].ion.limitingConductivity; }
    double share(std::size_t of, std::size_t with) const {
        return mobility(of) / (mobility(of) + mobility(with));
    }
    static double largest(const std::vector<double>& values) {
        double most = 0.0;
        for (const double value : values) {
            most = std::max(most, std::abs(value));
        }
        return most;
    }

    std::vector<double> firstForces() const {
        std::vector<double> forces(solution_.size(), 0.0);
        for (std::size_t i = 0; i < forces.size(); ++i) {
            for (std::size_t j = 0; j < forces.size(); ++j) {
                forces[i] += fraction(j) * (solution_[i].ion.charge * share(i, j) -
                                            solution_[j].ion.charge * share(j, i));
            }
        }
        return forces;
    }

    // (1 - H) applied to a vector.
    std::vector<double> withoutCoupling(const std::vector<double>& vector) const {
        std::vector<double> result = vector;
        for (std::size_t i = 0; i < result.size(); ++i) {
            for (std::size_t j = 0; j < result.size(); ++j) {
                result[i] -= fraction(j) * share(j, i) * (vector[i] + vector[j]);
            }
        }
        return result;
    }

    const std::vector<DissolvedConductor>& solution_;
    double total_; // mol/L
};

} // namespace

std::vector<double> relaxationFactors(const std::vector<DissolvedConductor>& solution) {
    return Relaxation(solution).factors();
}

std::vector<double> ionConductivities(const std::vector<DissolvedConductor>& solution) {
    const double root = std::sqrt(0.5 * ionSum(solution));
    std::vector<double> conductivities = relaxationFactors(solution);
    for (std::size_t i = 0; i < solution.size(); ++i) {
        const Conductor& ion = solution[i].ion;
        const double slope =
            kRelaxation * conductivities[i] * ion.limitingConductivity + kElectrophoresis;
        conductivities[i] =
            ion.limitingConductivity - slope * root / (1.0 + kInverseAtmosphere * ion.size * root);
    }
    return conductivities;
}

} // namespace quendal::curves
