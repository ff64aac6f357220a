import { PickerElement } from './element.js';
import { IconPicker, WeatherAndTemperaturePicker } from './icons.js';
import { Kind, optionsOf, propertyName, type Option, type UnitSystem } from './properties.js';
import { Wheel } from './wheel.js';

export { IconPicker, WeatherAndTemperaturePicker } from './icons.js';
export type { UnitSystem } from './properties.js';
export { Wheel, type WheelColumn } from './wheel.js';

/** A number from a range, in whole steps. The maximum itself is not offered. */
export class NumberPicker extends PickerElement {
    static override readonly kind: Kind = Kind.Number;
    /** The number. */
    declare value: number;
    /** The least number. */
    declare min: number;
    /** The number above the greatest one. */
    declare max: number;
    /** From each row to the next. */
    declare step: number;
}

/** A rate in beats per minute. */
export class BpmPicker extends NumberPicker {
    static override readonly kind = Kind.Bpm;
}

/** An amount of energy in kilocalories. */
export class CaloriesPicker extends NumberPicker {
    static override readonly kind = Kind.Calories;
}

/** A distance in metres, with one or two decimal places of a kilometre or mile. */
export class DistancePicker extends PickerElement {
    static override readonly kind = Kind.Distance;
    /** In metres. */
    declare value: number;
    /** The least distance, in metres. */
    declare min: number;
    /** The greatest distance, in metres. */
    declare max: number;
    /** Kilometres or miles. */
    declare unit: UnitSystem;
    /** Decimal places: 1 or 2. */
    declare fractionDigits: number;
}

/** The columns of a duration. */
export type DurationLayout = 'hours-minutes' | 'hours-minutes-seconds' | 'minutes-seconds';

/** A duration in milliseconds. */
export class DurationPicker extends PickerElement {
    static override readonly kind = Kind.Duration;
    /** In milliseconds. */
    declare value: number;
    /** The least duration, in milliseconds. */
    declare min: number;
    /** The greatest duration, in milliseconds. */
    declare max: number;
    /** Which columns there are. */
    declare layout: DurationLayout;
    /** Hours from each row to the next. */
    declare hoursStep: number;
    /** Minutes from each row to the next. */
    declare minutesStep: number;
    /** Seconds from each row to the next. */
    declare secondsStep: number;
}

/** A distance in metres and a duration in milliseconds, side by side. */
export class DistanceAndDurationPicker extends PickerElement {
    static override readonly kind = Kind.DistanceAndDuration;
    /** In metres. */
    declare distance: number;
    /** In milliseconds. */
    declare duration: number;
    /** The least distance, in metres. */
    declare minDistance: number;
    /** The greatest distance, in metres. */
    declare maxDistance: number;
    /** The least duration, in milliseconds. */
    declare minDuration: number;
    /** The greatest duration, in milliseconds. */
    declare maxDuration: number;
    /** Kilometres or miles. */
    declare unit: UnitSystem;
    /** Decimal places of the distance: 1 or 2. */
    declare fractionDigits: number;
    /** Which columns the duration has. */
    declare layout: DurationLayout;
    /** Hours from each row to the next. */
    declare hoursStep: number;
    /** Minutes from each row to the next. */
    declare minutesStep: number;
    /** Seconds from each row to the next. */
    declare secondsStep: number;
}

/** An average and a maximum heart rate in beats per minute; 0 for no value. */
export class HeartRatePicker extends PickerElement {
    static override readonly kind = Kind.HeartRate;
    /** In beats per minute; 0 for none. */
    declare average: number;
    /** In beats per minute; 0 for none. */
    declare maximum: number;
    /** The least rate. */
    declare min: number;
    /** The greatest rate. */
    declare max: number;
    /** How much the maximum is above the average at least. */
    declare gap: number;
    /** Without the row for no value. */
    declare noNullRow: boolean;
}

/** A body height in centimetres. The user may choose the unit. */
export class HeightPicker extends PickerElement {
    static override readonly kind = Kind.Height;
    /** In centimetres. */
    declare value: number;
    /** Centimetres, or feet and inches. The user may change it. */
    declare unit: UnitSystem;
}

/**
 * A running pace, as the speed in metres per second. `min` is the fastest one, the largest number.
 */
export class PacePicker extends PickerElement {
    static override readonly kind = Kind.Pace;
    /** As a speed, in metres per second. */
    declare value: number;
    /** The fastest pace, as a speed in metres per second. */
    declare min: number;
    /** The slowest pace, as a speed in metres per second. */
    declare max: number;
    /** Minutes per kilometre or per mile. */
    declare unit: UnitSystem;
    /** Minutes from each row to the next. */
    declare minutesStep: number;
    /** Seconds from each row to the next. */
    declare secondsStep: number;
}

/** A speed in metres per second. */
export class SpeedPicker extends PickerElement {
    static override readonly kind = Kind.Speed;
    /** In metres per second. */
    declare value: number;
    /** The least speed, in metres per second. */
    declare min: number;
    /** The greatest speed, in metres per second. */
    declare max: number;
    /** Kilometres or miles per hour. */
    declare unit: UnitSystem;
}

/** A temperature in degrees Celsius. */
export class TemperaturePicker extends NumberPicker {
    static override readonly kind = Kind.Temperature;
    /** Degrees Celsius or Fahrenheit. */
    declare unit: UnitSystem;
}

/** A body weight in kilograms. */
export class WeightPicker extends PickerElement {
    static override readonly kind = Kind.Weight;
    /** In kilograms. */
    declare value: number;
    /** The least weight, in kilograms. */
    declare min: number;
    /** The greatest weight, in kilograms. */
    declare max: number;
    /** Kilograms, pounds or stones. */
    declare unit: 'kg' | 'lb' | 'st';
    /** Whether the user can choose the unit in a column of its own. */
    declare unitSelectable: boolean;
}

/** All elements by their names. */
export const elements = {
    'gx-number-picker': NumberPicker,
    'gx-bpm-picker': BpmPicker,
    'gx-calories-picker': CaloriesPicker,
    'gx-distance-picker': DistancePicker,
    'gx-distance-and-duration-picker': DistanceAndDurationPicker,
    'gx-duration-picker': DurationPicker,
    'gx-heart-rate-picker': HeartRatePicker,
    'gx-height-picker': HeightPicker,
    'gx-icon-picker': IconPicker,
    'gx-pace-picker': PacePicker,
    'gx-speed-picker': SpeedPicker,
    'gx-temperature-picker': TemperaturePicker,
    'gx-weather-and-temperature-picker': WeatherAndTemperaturePicker,
    'gx-weight-picker': WeightPicker,
    'gx-wheel': Wheel,
} as const;

/** Gives a class the accessors of its options, and the page the element. */
function define(name: string, element: typeof PickerElement): void {
    if (typeof customElements === 'undefined' || customElements.get(name)) return;
    for (const option of optionsOf[element.kind]) {
        Object.defineProperty(element.prototype, propertyName(option.attribute), {
            configurable: true,
            enumerable: true,
            get(this: { getOption(asked: Option): unknown }) {
                return this.getOption(option);
            },
            set(this: { setOption(asked: Option, value: unknown): void }, value: unknown) {
                this.setOption(option, value);
            },
        });
    }
    customElements.define(name, element as unknown as CustomElementConstructor);
}

/** Defines all elements; a second call, and one where there is no DOM, does nothing. */
export function defineElements(): void {
    for (const [name, element] of Object.entries(elements)) define(name, element);
}

declare global {
    interface HTMLElementTagNameMap {
        'gx-number-picker': NumberPicker;
        'gx-bpm-picker': BpmPicker;
        'gx-calories-picker': CaloriesPicker;
        'gx-distance-picker': DistancePicker;
        'gx-distance-and-duration-picker': DistanceAndDurationPicker;
        'gx-duration-picker': DurationPicker;
        'gx-heart-rate-picker': HeartRatePicker;
        'gx-height-picker': HeightPicker;
        'gx-icon-picker': IconPicker;
        'gx-pace-picker': PacePicker;
        'gx-speed-picker': SpeedPicker;
        'gx-temperature-picker': TemperaturePicker;
        'gx-weather-and-temperature-picker': WeatherAndTemperaturePicker;
        'gx-weight-picker': WeightPicker;
        'gx-wheel': Wheel;
    }
    interface HTMLElementEventMap {
        'gx-tick': CustomEvent<null>;
        'gx-text': CustomEvent<null>;
    }
}
