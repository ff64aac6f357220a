// The elements in Vue's templates: import type {} from 'gxuipickers/vue';
import type { HTMLAttributes } from 'vue';
import type { ElementName, ElementProps } from './props.js';

type ElementsInVue = {
    [Name in ElementName]: new () => {
        $props: Omit<HTMLAttributes, keyof ElementProps<Name>> & ElementProps<Name> & { onGxTick?: (event: CustomEvent) => void };
    };
};

declare module 'vue' {
    interface GlobalComponents extends ElementsInVue {}
}
