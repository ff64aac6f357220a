/** The pickers, as the module numbers them (`PickerKind`). */
export enum Kind {
    Number = 0,
    Bpm,
    Calories,
    Distance,
    DistanceAndDuration,
    Duration,
    HeartRate,
    Height,
    Icon,
    Pace,
    Speed,
    Temperature,
    WeatherAndTemperature,
    Weight,
    Columns,
}

/**
 * The properties, as the module numbers them (`PickerProperty`), in the order of their application.
 */
export enum Property {
    Metric = 0,
    WeightUnit,
    UnitSelectable,
    FractionDigits,
    Layout,
    HoursStep,
    MinutesStep,
    SecondsStep,
    NullRow,
    Gap,
    Min,
    Max,
    Step,
    MinDistance,
    MaxDistance,
    MinDuration,
    MaxDuration,
    Average,
    Maximum,
    Distance,
    Duration,
    Weather,
    Temperature,
    Value,
}

/** Metres, metres per second, degrees Celsius and so on are shown in one of two systems. */
export type UnitSystem = 'metric' | 'imperial';

/** How an attribute stands for a number of the module's. */
export interface Option {
    /** The attribute; the property has the same name in camel case. */
    readonly attribute: string;
    readonly property: Property;
    /** The words that the attribute takes instead of numbers, with what they stand for. */
    readonly words?: Readonly<Record<string, number>>;
    /** Whether the attribute's presence alone is 1. */
    readonly isFlag?: boolean;
    /** What the user changes; all others are the page's. */
    readonly isValue?: boolean;
    /** What holds without the attribute, where that is not the picker's own default. */
    readonly fallback?: number;
}

/** `data-…` and the like never get here: the name of the property for an attribute. */
export const propertyName = (attribute: string): string => attribute.replace(/-([a-z])/g, (_, letter: string) => letter.toUpperCase());

const metric: Option = { attribute: 'unit', property: Property.Metric, words: { metric: 1, imperial: 0 }, fallback: 1 };
const number = (attribute: string, property: Property): Option => ({ attribute, property });
const value = (attribute: string, property: Property): Option => ({ attribute, property, isValue: true });

const range: readonly Option[] = [number('min', Property.Min), number('max', Property.Max), number('step', Property.Step)];
const single: readonly Option[] = [...range, value('value', Property.Value)];
const durationSteps: readonly Option[] = [
    number('hours-step', Property.HoursStep),
    number('minutes-step', Property.MinutesStep),
    number('seconds-step', Property.SecondsStep),
];
const layout: Option = {
    attribute: 'layout',
    property: Property.Layout,
    words: { 'hours-minutes': 0, 'hours-minutes-seconds': 1, 'minutes-seconds': 2 },
};
const fractionDigits = number('fraction-digits', Property.FractionDigits);

/** The options of each kind of picker, in the order of their application. */
export const optionsOf: Readonly<Record<Kind, readonly Option[]>> = {
    [Kind.Number]: single,
    [Kind.Bpm]: single,
    [Kind.Calories]: single,
    [Kind.Distance]: [metric, fractionDigits, ...range.slice(0, 2), value('value', Property.Value)],
    [Kind.DistanceAndDuration]: [
        metric,
        fractionDigits,
        layout,
        ...durationSteps,
        number('min-distance', Property.MinDistance),
        number('max-distance', Property.MaxDistance),
        number('min-duration', Property.MinDuration),
        number('max-duration', Property.MaxDuration),
        value('distance', Property.Distance),
        value('duration', Property.Duration),
    ],
    [Kind.Duration]: [layout, ...durationSteps, ...range.slice(0, 2), value('value', Property.Value)],
    [Kind.HeartRate]: [
        { attribute: 'no-null-row', property: Property.NullRow, isFlag: true, words: { '0': 1, '1': 0 } },
        number('gap', Property.Gap),
        ...range.slice(0, 2),
        value('average', Property.Average),
        value('maximum', Property.Maximum),
    ],
    [Kind.Height]: [metric, value('value', Property.Value)],
    [Kind.Icon]: [number('min', Property.Min), value('value', Property.Value)],
    [Kind.Pace]: [metric, ...durationSteps.slice(1), ...range.slice(0, 2), value('value', Property.Value)],
    [Kind.Speed]: [metric, ...range.slice(0, 2), value('value', Property.Value)],
    [Kind.Temperature]: [metric, ...single],
    [Kind.WeatherAndTemperature]: [metric, ...range, value('weather', Property.Weather), value('temperature', Property.Temperature)],
    [Kind.Weight]: [
        { attribute: 'unit', property: Property.WeightUnit, words: { kg: 0, lb: 1, st: 2 } },
        { attribute: 'unit-selectable', property: Property.UnitSelectable, isFlag: true },
        ...range.slice(0, 2),
        value('value', Property.Value),
    ],
    [Kind.Columns]: [],
};

/** The number that an attribute stands for; nothing for a text that is none. */
export function numberOf(option: Option, text: string | null): number | undefined {
    if (option.isFlag) return option.words ? option.words[text === null ? '0' : '1'] : Number(text !== null);
    if (text === null) return undefined;
    if (option.words) return Object.hasOwn(option.words, text) ? option.words[text] : undefined;
    const trimmed = text.trim();
    const result = Number(trimmed);
    return trimmed !== '' && Number.isFinite(result) ? result : undefined;
}

/** The text that stands for a number in an attribute. */
export function textOf(option: Option, value: number): string {
    const word = option.words && Object.keys(option.words).find((name) => option.words?.[name] === value);
    return word ?? String(value);
}
