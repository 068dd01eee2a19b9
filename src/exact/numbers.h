#pragma once

#include <compare>
#include <string>
#include <utility>

#include <arb.h>
#include <flint/fmpq.h>
#include <flint/fmpz.h>

namespace tavi::exact {

// Owners of FLINT's numbers. Each converts to the pointer that FLINT's functions take, so that these can be
// called on it; comparisons compare the numbers.

class Integer {
 public:
  Integer(slong value = 0) { fmpz_init_set_si(&value_, value); }
  static Integer copyOf(const fmpz* value) {
    Integer copy;
    fmpz_set(copy, value);
    return copy;
  }
  Integer(const Integer& other) { fmpz_init_set(&value_, &other.value_); }
  Integer(Integer&& other) noexcept { std::swap(value_, other.value_); }
  Integer& operator=(Integer other) noexcept {
    std::swap(value_, other.value_);
    return *this;
  }
  ~Integer() { fmpz_clear(&value_); }

  operator fmpz*() { return &value_; }
  operator const fmpz*() const { return &value_; }

  friend bool operator==(const Integer& a, const Integer& b) { return fmpz_equal(a, b) != 0; }
  friend std::strong_ordering operator<=>(const Integer& a, const Integer& b) { return fmpz_cmp(a, b) <=> 0; }
  friend bool operator==(const Integer& a, slong b) { return fmpz_equal_si(a, b) != 0; }
  friend std::strong_ordering operator<=>(const Integer& a, slong b) { return fmpz_cmp_si(a, b) <=> 0; }

 private:
  fmpz value_ = 0;
};

/// In decimal digits.
inline std::string textOf(const fmpz* number) {
  std::string text(fmpz_sizeinbase(number, 10) + 2, '\0');
  fmpz_get_str(text.data(), 10, number);
  text.resize(text.find('\0'));
  return text;
}

/// Always in lowest terms with a positive denominator.
class Rational {
 public:
  Rational(slong value = 0) {
    fmpq_init(&value_);
    fmpz_set_si(numerator(), value);
  }
  Rational(const fmpz* numerator, const fmpz* denominator) {
    fmpq_init(&value_);
    fmpq_set_fmpz_frac(&value_, numerator, denominator);
  }
  Rational(const Rational& other) {
    fmpz_init_set(numerator(), other.numerator());
    fmpz_init_set(denominator(), other.denominator());
  }
  Rational(Rational&& other) noexcept {
    fmpq_init(&value_);
    fmpq_swap(&value_, &other.value_);
  }
  Rational& operator=(Rational other) noexcept {
    fmpq_swap(&value_, &other.value_);
    return *this;
  }
  ~Rational() { fmpq_clear(&value_); }

  operator fmpq*() { return &value_; }
  operator const fmpq*() const { return &value_; }
  fmpz* numerator() { return fmpq_numref(&value_); }
  fmpz* denominator() { return fmpq_denref(&value_); }
  const fmpz* numerator() const { return fmpq_numref(&value_); }
  const fmpz* denominator() const { return fmpq_denref(&value_); }

  int sign() const { return fmpq_sgn(&value_); }
  bool isZero() const { return fmpz_is_zero(numerator()) != 0; }
  bool isWhole() const { return fmpz_is_one(denominator()) != 0; }

  friend bool operator==(const Rational& a, const Rational& b) { return fmpq_equal(a, b) != 0; }
  friend bool operator==(const Rational& a, slong b) {
    return a.isWhole() && fmpz_equal_si(a.numerator(), b) != 0;
  }
  friend std::strong_ordering operator<=>(const Rational& a, slong b) { return fmpq_cmp_si(a, b) <=> 0; }

  friend Rational operator+(Rational a, const Rational& b) {
    fmpq_add(a, a, b);
    return a;
  }
  friend Rational operator*(Rational a, const Rational& b) {
    fmpq_mul(a, a, b);
    return a;
  }
  /// `b` is not 0.
  friend Rational operator/(Rational a, const Rational& b) {
    fmpq_div(a, a, b);
    return a;
  }
  friend Rational operator-(Rational a) {
    fmpq_neg(a, a);
    return a;
  }

 private:
  fmpq value_;
};

/// A real number known to lie within a radius of a midpoint.
class Ball {
 public:
  Ball() { arb_init(&value_); }
  Ball(const Ball& other) : Ball() { arb_set(&value_, &other.value_); }
  Ball(Ball&& other) noexcept : Ball() { arb_swap(&value_, &other.value_); }
  Ball& operator=(Ball other) noexcept {
    arb_swap(&value_, &other.value_);
    return *this;
  }
  ~Ball() { arb_clear(&value_); }

  operator arb_ptr() { return &value_; }
  operator arb_srcptr() const { return &value_; }

 private:
  arb_struct value_;
};

}  // namespace tavi::exact
