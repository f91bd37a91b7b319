#pragma once

namespace fh::fhsound {

// A two-pole low- or high-pass filter (the Audio EQ Cookbook's) at the synthesizer's sample rate,
// its corner free to move from sample to sample.
class Filter {
 public:
  enum class Pass { Low, High };

  Filter(Pass pass, double q);

  void tune(double hz);
  double run(double x) {
    const double y = m_b0 * x + m_z1;
    m_z1 = m_b1 * x - m_a1 * y + m_z2;
    m_z2 = m_b2 * x - m_a2 * y;
    return y;
  }

 private:
  Pass m_pass;
  double m_q;
  double m_b0 = 1, m_b1 = 0, m_b2 = 0, m_a1 = 0, m_a2 = 0;
  double m_z1 = 0, m_z2 = 0;
};

}  // namespace fh::fhsound
