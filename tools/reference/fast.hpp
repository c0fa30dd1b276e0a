// Double-precision formulas that judge single-precision results: the C library's functions, and these compositions of
// them for what it lacks. Each is right to a small fraction of a single-precision ulp for single-precision arguments;
// the accuracy program checks that against MPFR on a sample of every exhaustive run.
#ifndef QORL_TOOLS_REFERENCE_FAST_HPP
#define QORL_TOOLS_REFERENCE_FAST_HPP

namespace qorl::reference::fast {

double frac(double x);
double sqr(double x);
double inv(double x);
double inv_sqrt(double x);
double inv_cbrt(double x);
double pow2o3(double x);
double pow3o2(double x);
double exp10(double x);
double sinpi(double x);
double cospi(double x);
double tanpi(double x);
double sind(double x);
double cosd(double x);
double tand(double x);
double asinpi(double x);
double acospi(double x);
double atanpi(double x);
double erfcx(double x);
double erfinv(double x);
double erfcinv(double x);
double normal_cdf(double x);
double inverse_normal_cdf(double x);
double expint1(double x);
double i0(double x);
double i1(double x);

}  // namespace qorl::reference::fast

#endif
