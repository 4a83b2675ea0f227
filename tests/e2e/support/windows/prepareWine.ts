import { WinePrefix } from './winePrefix';

/** Wine takes some seconds to make a prefix: the workers copy this one. */
export default function prepareWine() {
  WinePrefix.makeTemplate();
}
