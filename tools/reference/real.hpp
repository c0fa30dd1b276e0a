// Owner of an MPFR number.
#ifndef QORL_TOOLS_REFERENCE_REAL_HPP
#define QORL_TOOLS_REFERENCE_REAL_HPP

#include <mpfr.h>

namespace qorl::reference {

class Real {
  public:
    explicit Real(mpfr_prec_t precision) { mpfr_init2(value_, precision); }
    Real(mpfr_prec_t precision, double value) : Real(precision) { mpfr_set_d(value_, value, MPFR_RNDN); }
    ~Real() { mpfr_clear(value_); }
    Real(const Real &) = delete;
    Real &operator=(const Real &) = delete;

    operator mpfr_ptr() { return value_; }
    operator mpfr_srcptr() const { return value_; }

  private:
    mpfr_t value_;
};

}  // namespace qorl::reference

#endif
