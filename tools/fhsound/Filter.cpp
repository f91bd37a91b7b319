#include "Filter.h"

#include "Synthesis.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace fh::fhsound {

Filter::Filter(Pass pass, double q) : m_pass(pass), m_q(q) {}

void Filter::tune(double hz) {
  // Kept below the top of the band, where the formulas fold over.
  const double w = 2 * std::numbers::pi * std::clamp(hz, 10.0, 0.45 * kSampleRate) / kSampleRate;
  const double cosine = std::cos(w);
  const double alpha = std::sin(w) / (2 * m_q);
  const double a0 = 1 + alpha;
  const double edge = m_pass == Pass::Low ? (1 - cosine) / 2 : (1 + cosine) / 2;
  m_b0 = edge / a0;
  m_b1 = (m_pass == Pass::Low ? 2 * edge : -2 * edge) / a0;
  m_b2 = edge / a0;
  m_a1 = -2 * cosine / a0;
  m_a2 = (1 - alpha) / a0;
}

}  // namespace fh::fhsound
