// A complex number in single precision that converts between its two forms only when asked.
#pragma once

namespace r7 {

/// A complex number kept in cartesian form, in polar form or in both.
///
/// A form is computed from the other only when somebody asks for it and it is missing; asking therefore
/// changes what is stored, never the value. At least one form is always there. Operations return a new
/// number.
///
/// Every result is rounded to single precision, in the order told, so that two builds agree to the last bit.
/// A turn by pi or 2 pi is added to the phase in double precision and rounded back. Nothing is checked:
/// zeros, infinities and NaN follow IEEE arithmetic.
///
/// Phases are radians and are not normalised. One that came from cartesian form lies in (-pi, pi]; each
/// operation says what it does to its own.
class Qm_ObjectiveComplex final {
public:
    /// Zero, in both forms.
    Qm_ObjectiveComplex() = default;
    static Qm_ObjectiveComplex initWithReal_Imaginary(float re, float im);
    /// The magnitude is stored as it is given, also when negative.
    static Qm_ObjectiveComplex initWithMagnitude_Angle(float magnitude, float angle);

    float real() const;
    float imaginary() const;
    float magnitude() const;
    float phase() const;
    bool hasCartesian() const { return _hasCartesian; }
    bool hasPolar() const { return _hasPolar; }

    /// On cartesian form.
    Qm_ObjectiveComplex add(const Qm_ObjectiveComplex& other) const;
    Qm_ObjectiveComplex sub(const Qm_ObjectiveComplex& other) const;
    Qm_ObjectiveComplex addFloat(float f) const;
    Qm_ObjectiveComplex subFloat(float f) const;

    /// On polar form; a phase above 2 pi is turned back by 2 pi, once. Below zero it stays: of all the
    /// operations only mult wraps above and only div wraps below, and that is meant.
    Qm_ObjectiveComplex mult(const Qm_ObjectiveComplex& other) const;
    /// On polar form; a phase that is not >= 0 is turned on by 2 pi, once. Above 2 pi it stays.
    Qm_ObjectiveComplex div(const Qm_ObjectiveComplex& other) const;
    /// On polar form; a negative magnitude becomes half a turn back, then a phase that is not >= 0 is turned
    /// on by 2 pi. NaN counts as negative.
    Qm_ObjectiveComplex multFloat(float f) const;
    Qm_ObjectiveComplex divFloat(float f) const;
    /// On polar form: half a turn back, then as multFloat.
    Qm_ObjectiveComplex negate() const;

    void setReal_imaginary(float re, float im);
    void setMagnitude_phase(float magnitude, float phase);
    /// Each of these keeps the other component of its form and drops the other form.
    void setReal(float value);
    void setImaginary(float value);
    void setMagnitude(float value);
    void setPhase(float value);

private:
    void fill_cartesian() const;
    void fill_polar() const;
    void keep_only_cartesian();
    void keep_only_polar();

    // Each form is a cache of the other, so reading may fill it.
    mutable float _r = 0.0f;
    mutable float _w = 0.0f;
    mutable float _x = 0.0f;
    mutable float _y = 0.0f;
    mutable bool _hasCartesian = true;
    mutable bool _hasPolar = true;
};

} // namespace r7
