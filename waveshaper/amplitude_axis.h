// The amplitudes that a graph shows, and where they lie in its view.
#pragma once

namespace r7 {

/// The amplitudes at the edges of a graph: input along x, output along y. Dimensionless, 1 is full scale.
///
/// The input axis also shows the phase of the test sines, hence its range of one turn.
struct AmplitudeLimits {
    float in_amplitude_min = -3.1415927F;
    float in_amplitude_max = 3.1415927F;
    float out_amplitude_min = -2.0F;
    float out_amplitude_max = 2.0F;

    /// An amplitude kept within its limits. A NaN stays one.
    double clamped_in(double amplitude) const
    {
        return clamped(amplitude, in_amplitude_min, in_amplitude_max);
    }
    double clamped_out(double amplitude) const
    {
        return clamped(amplitude, out_amplitude_min, out_amplitude_max);
    }

    AmplitudeLimits scaled_by(float factor) const
    {
        return {in_amplitude_min * factor, in_amplitude_max * factor, out_amplitude_min * factor,
                out_amplitude_max * factor};
    }

private:
    static double clamped(double value, double minimum, double maximum)
    {
        return value < minimum ? minimum : value > maximum ? maximum : value;
    }
};

/// One axis of a graph: the amplitudes `minimum` to `maximum` spread over `length` points from `origin`.
///
/// An axis without extent has no positions to give; what comes out then is not finite.
struct AmplitudeAxis {
    float minimum = 0;
    float maximum = 0;
    double origin = 0; ///< view coordinate of `minimum`
    double length = 0; ///< in points

    /// View coordinate of an amplitude, which may lie beyond the ends.
    float position(double amplitude) const
    {
        return static_cast<float>(length / (maximum - minimum) * (amplitude - minimum) + origin);
    }

    /// Amplitude at a view coordinate: the inverse of `position`, up to rounding.
    float amplitude(double position) const
    {
        return static_cast<float>(minimum + (maximum - minimum) / length * (position - origin));
    }
};

} // namespace r7
