import type { elements } from './asset.js';

/** The elements by their names. */
export type ElementName = keyof typeof elements;
export type ElementOf<Name extends ElementName> = InstanceType<(typeof elements)[Name]>;

type IsSame<One, Other> = (<T>() => T extends One ? 1 : 2) extends <T>() => T extends Other ? 1 : 2 ? true : false;

/** The properties that an element adds to those of all elements, and that can be set. */
type SettableName<Element> = {
    [Name in Exclude<keyof Element, keyof HTMLElement>]-?: Element[Name] extends (...parameters: never[]) => unknown
        ? never
        : IsSame<Pick<Element, Name>, { -readonly [Same in Name]: Element[Same] }> extends true
          ? Name
          : never;
}[Exclude<keyof Element, keyof HTMLElement>];

/** `fractionDigits` is `fraction-digits` as an attribute. */
type AttributeName<Name extends string> = Name extends `${infer First}${infer Rest}`
    ? First extends Lowercase<First>
        ? `${First}${AttributeName<Rest>}`
        : `-${Lowercase<First>}${AttributeName<Rest>}`
    : Name;

/** What a template may set of an element: its properties, also under their attributes' names. */
export type ElementProps<Name extends ElementName> = {
    [Property in SettableName<ElementOf<Name>>]?: ElementOf<Name>[Property];
} & {
    [Property in SettableName<ElementOf<Name>> as AttributeName<Property & string>]?: ElementOf<Name>[Property];
} & { readonly?: boolean; ticks?: boolean };
