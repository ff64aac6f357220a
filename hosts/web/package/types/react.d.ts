// The elements in React's JSX (19 or later): import type {} from 'gxuipickers/react';
import type { ClassAttributes, HTMLAttributes } from 'react';
import type { ElementName, ElementOf, ElementProps } from './props.js';

type ElementsInReact = {
    [Name in ElementName]: ClassAttributes<ElementOf<Name>> &
        Omit<HTMLAttributes<ElementOf<Name>>, keyof ElementProps<Name>> &
        ElementProps<Name> & { 'ongx-tick'?: (event: CustomEvent) => void; 'ongx-text'?: (event: CustomEvent) => void };
};

declare module 'react' {
    namespace JSX {
        interface IntrinsicElements extends ElementsInReact {}
    }
}
