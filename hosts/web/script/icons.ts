import { PickerElement } from './element.js';
import { Kind, type UnitSystem } from './properties.js';
import type { View } from './view.js';

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
        const label = (node: Element): string => node.getAttribute('alt') ?? node.getAttribute('aria-label') ?? '';
        view.surface.setImages(nodes);
        view.set((calls) => {
            const length = view.module.giveText(nodes.map((node) => `${label(node).replaceAll('\n', ' ')}\n`).join(''));
            const numbers = nodes.flatMap((node, handle) => [handle, size(node, 'width'), size(node, 'height')]);
            calls.setIcons(view.number, view.module.giveNumbers(numbers), nodes.length, length);
        });
    }
}

/**
 * One of the pictures among its children, `<img alt>` or `<svg aria-label>`. The value is its
 * index.
 */
export class IconPicker extends PickerWithIcons {
    static override readonly kind = Kind.Icon;
    /** The index of the icon. */
    declare value: number;
    /** The index of the first icon that is shown. */
    declare min: number;
}

/**
 * A weather, as the index of a picture among its children, and a temperature in degrees Celsius.
 */
export class WeatherAndTemperaturePicker extends PickerWithIcons {
    static override readonly kind = Kind.WeatherAndTemperature;
    /** The index of the icon. */
    declare weather: number;
    /** In degrees Celsius. */
    declare temperature: number;
    /** The least temperature. */
    declare min: number;
    /** The temperature above the greatest one. */
    declare max: number;
    /** Degrees from each row to the next. */
    declare step: number;
    /** Degrees Celsius or Fahrenheit. */
    declare unit: UnitSystem;
}
