import { define, PickerElement } from './element.js';
import { Kind } from './properties.js';
import type { View } from './view.js';

/** Metres, metres per second, degrees Celsius and so on are shown in one of two systems. */
export type UnitSystem = 'metric' | 'imperial';

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

/** What has icons: the pictures among the element's children, in their order. */
abstract class PickerWithIcons extends PickerElement {
    private watch: MutationObserver | undefined;

    override connectedCallback(): void {
        super.connectedCallback();
        this.watch = new MutationObserver(() => this.view && this.readIcons(this.view));
        this.watch.observe(this, {
            childList: true,
            attributes: true,
            subtree: true,
            attributeFilter: ['src', 'alt', 'aria-label', 'width', 'height'],
        });
    }

    override disconnectedCallback(): void {
        this.watch?.disconnect();
        super.disconnectedCallback();
    }

    protected override didOpen(view: View): void {
        this.readIcons(view);
    }

    private readIcons(view: View): void {
        const nodes = [...this.children].filter(
            (child): child is HTMLElement => child instanceof HTMLImageElement || child instanceof SVGElement,
        );
        const size = (node: Element, name: string): number => Number(node.getAttribute(name)) || 24;
        view.setIcons(
            nodes.map((node) => ({
                node,
                width: size(node, 'width'),
                height: size(node, 'height'),
                label: node.getAttribute('alt') ?? node.getAttribute('aria-label') ?? '',
            })),
        );
    }
}

/**
 * One of the pictures among its children, `<img alt>` or `<svg aria-label>`. The value is its
 * index.
 */
export class IconPicker extends PickerWithIcons {
    static override readonly kind = Kind.Icon;
    declare value: number;
    declare min: number;
}

/**
 * A weather, as the index of a picture among its children, and a temperature in degrees Celsius.
 */
export class WeatherAndTemperaturePicker extends PickerWithIcons {
    static override readonly kind = Kind.WeatherAndTemperature;
    declare weather: number;
    declare temperature: number;
    declare min: number;
    declare max: number;
    declare step: number;
    declare unit: UnitSystem;
}

/** A column of an application's own: titles, or how many rows there are and what shows a row. */
export interface WheelColumn {
    readonly rows: readonly string[] | number;
    readonly title?: (row: number) => string;
    /** In CSS pixels; an equal share without it. */
    readonly width?: number;
    readonly label?: string;
}

/** A wheel of an application's own columns. Its values are the selected rows. */
export class Wheel extends PickerElement {
    static override readonly kind = Kind.Columns;
    private list: readonly WheelColumn[] = [];
    private selected: number[] = [];

    protected override ownPropertyNames(): string[] {
        return ['columns', 'rows'];
    }

    get columns(): readonly WheelColumn[] {
        return this.list;
    }

    set columns(columns: readonly WheelColumn[]) {
        this.selected = this.rows;
        this.list = [...columns];
        if (this.view) this.didOpen(this.view);
    }

    /**
     * The selected row of each column; while the user turns, the row in the selection indicator.
     */
    get rows(): number[] {
        return this.read_(1);
    }

    set rows(rows: readonly number[]) {
        this.selected = [...rows];
        this.showRows();
    }

    private read_(isLive: number): number[] {
        const view = this.view;
        if (!view) return this.list.map((_, i) => this.selected[i] ?? 0);
        return this.list.map((_, i) => view.call((calls) => calls.row(view.number, i, isLive), 0));
    }

    protected override usersNumbers(): number[] {
        return this.read_(0);
    }

    private showRows(): void {
        const view = this.view;
        if (!view) return;
        this.list.forEach((_, i) => view.call((calls) => calls.setRow(view.number, i, this.selected[i] ?? 0), undefined));
        view.changed();
    }

    protected override didOpen(view: View): void {
        const counts = this.list.map((column) => (typeof column.rows === 'number' ? column.rows : column.rows.length));
        view.setColumns(
            counts,
            this.list.map((column) => ({ width: column.width ?? 0, label: column.label ?? '' })),
        );
        this.showRows();
    }

    protected override rowTitle(column: number, row: number): string | null {
        const entry = this.list[column];
        if (!entry) return null;
        if (entry.title) return entry.title(row);
        return typeof entry.rows === 'number' ? String(row) : (entry.rows[row] ?? null);
    }
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
    }
}
